#include "RandomTree.h"

#include <VORNELCore/Records/SkillFiles.h>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <fstream>
#include <stdexcept>
#include <utility>

namespace vornel {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t longestName = 255;

std::string longName()
{
    return std::string(longestName, 'n');
}

void addFile(const fs::path &path, std::uintmax_t size)
{
    std::ofstream(path) << "what nobody knows";
    fs::resize_file(path, size);
}

/// Nested folders, deeper than the longest path can name.
void makeNest(const fs::path &path, const std::string &name, int levels)
{
    fs::create_directory(path);
    int folder = ::open(path.c_str(), O_DIRECTORY | O_CLOEXEC);
    for (int level = 0; level < levels && folder >= 0; ++level) {
        const bool made = ::mkdirat(folder, name.c_str(), S_IRWXU) == 0;
        const int inner = made ? ::openat(folder, name.c_str(), O_DIRECTORY | O_CLOEXEC) : -1;
        ::close(folder);
        folder = inner;
    }
    if (folder < 0)
        throw std::runtime_error("the nest can't be made");
    ::close(folder);
}

bool isFolder(const fs::path &path)
{
    return fs::symlink_status(path).type() == fs::file_type::directory;
}

} // namespace

RandomTree::RandomTree(unsigned seed, fs::path outside) : m_random(seed), m_outside(std::move(outside))
{
    const std::vector all{Hazard::Link,     Hazard::Pipe,      Hazard::Name,      Hazard::Nest,
                          Hazard::LongPath, Hazard::LargeFile, Hazard::Unreadable};
    for (int count = between(0, 2); count > 0; --count)
        m_hazards.push_back(oneOf(all));
}

int RandomTree::between(int lowest, int highest)
{
    // Not a distribution of the library's: those differ from one library to the next.
    const auto count = static_cast<unsigned>(highest - lowest + 1);
    return lowest + static_cast<int>(m_random() % count);
}

void RandomTree::fill(const fs::path &folder)
{
    fill(folder, 1);
    if (!m_hazards.empty())
        addHazard(folder / "last");
}

void RandomTree::fill(const fs::path &folder, int level)
{
    m_folders.push_back(folder);
    for (int count = between(1, 6); count > 0; --count) {
        const fs::path path = folder / name();
        if (fs::symlink_status(path).type() == fs::file_type::not_found)
            addEntry(path, level);
    }
}

void RandomTree::addEntry(const fs::path &path, int level)
{
    constexpr int deepestLevel = 4;
    constexpr int largestFile = 20'000;
    if (!m_hazards.empty() && chance(20))
        return addHazard(path);
    if (level == deepestLevel || chance(65))
        return addFile(path, static_cast<std::uintmax_t>(between(0, largestFile)));
    fs::create_directory(path);
    fill(path, level + 1);
}

void RandomTree::addHazard(const fs::path &path)
{
    constexpr auto limit = static_cast<std::uintmax_t>(SkillFiles::sizeLimit);
    switch (oneOf(m_hazards)) {
    case Hazard::Link:
        return addLink(path);
    case Hazard::Pipe:
        if (::mknod(path.c_str(), (chance(50) ? S_IFIFO : S_IFSOCK) | S_IRUSR | S_IWUSR, 0) != 0)
            throw fs::filesystem_error("mknod", path, std::error_code(errno, std::system_category()));
        return;
    case Hazard::Name:
        return addFile(path.parent_path() / oneOf<std::string>({"caf\xE9", "\xFF\xFE", ".vornel"}), 1);
    case Hazard::Nest:
        return makeNest(path, "d", between(95, 1200));
    case Hazard::LongPath:
        return makeNest(path, longName(), between(10, 60));
    case Hazard::LargeFile:
        return addFile(path, oneOf<std::uintmax_t>({limit / 8, limit + 1, limit * 1000}));
    case Hazard::Unreadable:
        if (chance(50))
            fs::create_directory(path);
        addFile(fs::is_directory(path) ? path / SkillFiles::text : path, 1);
        return fs::permissions(path, fs::perms::none);
    }
}

void RandomTree::addLink(const fs::path &path)
{
    const fs::path target = oneOf<fs::path>(
        {m_outside, m_outside / "skill", m_outside / "skill" / SkillFiles::text, m_outside / "nowhere",
         path.filename(), ".", "..", "/", fs::path("../../../../../../../../..") / m_outside.relative_path(),
         m_outside.lexically_relative(path.parent_path())});
    fs::create_symlink(target, path);
}

std::string RandomTree::name()
{
    static const std::vector<std::string> names{
        "a",      "b",      "sub",     "reference", "notes.md",    "Notes.md",   "SKILL.md", "skill.md",
        " ",      "a b",    " x ",     "a\nb",      "a\rb",        "\t",         "-rf",      "--",
        "...",    "..data", ".hidden", ".git",      "vornel.json", "~",          "$(exit)",  "*?[]",
        "\x1B[m", "a\\b",   "%s%n",    "\"'`",      "caf\u00E9",   "cafe\u0301", "\uFEFF",   "\u202Egnp",
        "CON",    "nul",    "a:b",     "\x7F",      longName(),    "10",         "9",        "skills"};
    return oneOf(names);
}

void emptyFolder(const fs::path &folder)
{
    // Moves the content of its folders up, level by level, so that any depth can be removed without
    // recursion.
    std::vector<fs::path> inner;
    int lifted = 0;
    do {
        inner.clear();
        for (const fs::directory_entry &entry : fs::directory_iterator(folder)) {
            if (isFolder(entry))
                inner.push_back(entry);
            else
                fs::remove(entry);
        }
        for (const fs::path &path : inner) {
            fs::permissions(path, fs::perms::owner_all);
            for (const fs::directory_entry &entry : fs::directory_iterator(path)) {
                if (isFolder(entry))
                    fs::permissions(entry, fs::perms::owner_all);
                fs::rename(entry, folder / (".lifted-" + std::to_string(lifted++)));
            }
            fs::remove(path);
        }
    } while (!inner.empty());
}

} // namespace vornel

#include "SharedFiles.h"

#include <VORNELInfrastructure/Disk/BestEffort.h>
#include <VORNELInfrastructure/Disk/FileOperations.h>
#include <VORNELInfrastructure/Tree/SecureFileTree.h>
#include <VORNELInfrastructure/Tree/TreeWalk.h>

#include <algorithm>
#include <array>

namespace vornel {

namespace fs = std::filesystem;

namespace {

/// Notes the sizes of the files of a tree, and reads none.
struct SizeSink
{
    struct Folder
    {};

    static Folder addFolder(const Folder & /*parent*/, const std::string & /*name*/) { return {}; }
    static void addFile(const Folder & /*parent*/, const std::string & /*name*/, const File &file,
                        FileTreeSnapshot::Entry &entry)
    {
        entry.size = file.size;
    }
};

/// Reads until the buffer is full or the file is at its end.
std::size_t fill(const FileSystem &files, const File &file, std::int64_t offset, std::span<char> buffer)
{
    std::size_t filled = 0;
    while (filled < buffer.size()) {
        const std::size_t count =
            files.read(file, offset + static_cast<std::int64_t>(filled), buffer.subspan(filled));
        if (count == 0)
            break;
        filled += count;
    }
    return filled;
}

bool areEqual(const FileSystem &files, const File &one, const File &other)
{
    std::array<char, 64UL * 1024> ofOne;
    std::array<char, 64UL * 1024> ofOther;
    for (std::int64_t offset = 0;;) {
        const auto read = std::span(ofOne).first(fill(files, one, offset, ofOne));
        if (!std::ranges::equal(read, std::span(ofOther).first(fill(files, other, offset, ofOther))))
            return false;
        if (read.size() < ofOne.size())
            return true;
        offset += static_cast<std::int64_t>(read.size());
    }
}

} // namespace

SharedFiles::SharedFiles(FileSystem &files, const fs::path &history, std::span<const std::string> entries)
    : m_files(files)
{
    for (const std::string &entry : entries) {
        bestEffort([&] {
            TreeWalk walk(files, TreeFilter::all, SizeSink());
            walk.run(files.openFolder(history / entry), {});
            const FileTreeSnapshot tree = walk.finish(history / entry);
            for (const FileTreeSnapshot::Entry &file : tree.entries) {
                if (tree.isWhole && file.size > 0)
                    m_bySize[file.size].push_back({history / entry, file.relativePath});
            }
        });
    }
}

void SharedFiles::copyTree(const fs::path &source, const fs::path &destination, TreeFilter filter) const
{
    SecureFileTree::copyTree(m_files, source, destination, filter,
                             [this](const File &file, const std::string &relativePath, const Place &copy) {
                                 return share(file, relativePath, copy);
                             });
}

void SharedFiles::replaceIn(const fs::path &entry, const fs::path &staging) const noexcept
{
    bestEffort([&] { replaceBelow(m_files.openFolder(entry), {}, m_files.openFolder(staging)); });
}

/// The file of the same path is the likeliest; any other may be the same under its former name.
bool SharedFiles::share(const File &file, const std::string &relativePath, const Place &to) const
{
    constexpr std::ptrdiff_t most =
        8; // of one size: with more, to look for an equal one costs more than it spares
    const auto found = m_bySize.find(file.size);
    if (found == m_bySize.end())
        return false;
    std::vector<Held> likely = found->second;
    std::ranges::stable_partition(likely,
                                  [&](const Held &held) { return held.relativePath == relativePath; });
    const auto end = likely.begin() + std::min(most, std::ssize(likely));
    return std::any_of(likely.begin(), end, [&](const Held &held) { return shareIfEqual(file, held, to); });
}

/// False also where the file can't be shared: it is copied then.
bool SharedFiles::shareIfEqual(const File &file, const Held &held, const Place &to) const
{
    bool isShared = false;
    bestEffort([&] {
        const fs::path path = held.root / held.relativePath;
        const Folder folder = m_files.openFolder(path.parent_path());
        if (areEqual(m_files, file, m_files.openFile(folder, path.filename()))) {
            m_files.share({folder, path.filename()}, to);
            isShared = true;
        }
    });
    return isShared;
}

void SharedFiles::replaceBelow(const Folder &folder, const std::string &prefix, const Folder &staging) const
{
    for (const FolderEntry &entry : m_files.list(folder)) {
        const std::string path = prefix + entry.name;
        if (entry.name.starts_with('.'))
            continue;
        if (entry.kind == FileKind::Directory)
            replaceBelow(m_files.openFolder(folder, entry.name), path + '/', staging);
        else if (entry.kind == FileKind::Regular)
            bestEffort([&] { replaceFile({folder, entry.name}, path, staging); });
    }
}

/// What an interruption leaves of it is in the staging folder.
void SharedFiles::replaceFile(const Place &place, const std::string &relativePath,
                              const Folder &staging) const
{
    const Place temporary{staging, temporaryName()};
    if (!share(m_files.openFile(place.folder, place.name), relativePath, temporary))
        return;
    try {
        const File shared = m_files.openFile(staging, temporary.name);
        if (shared.names == 1) // a clone
            m_files.flush(shared);
        m_files.rename(temporary, place, RenameMode::OntoFile);
    } catch (...) {
        bestEffort([&] { m_files.remove(staging, temporary.name); });
        throw;
    }
}

} // namespace vornel

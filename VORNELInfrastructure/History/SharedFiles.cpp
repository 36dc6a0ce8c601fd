#include "SharedFiles.h"

#include <VORNELInfrastructure/Disk/BestEffort.h>
#include <VORNELInfrastructure/Skills/SkillFiles.h>
#include <VORNELInfrastructure/Tree/SecureFileTree.h>
#include <VORNELInfrastructure/Tree/TreeWalk.h>

#include <algorithm>
#include <array>
#include <ranges>

namespace vornel {

namespace fs = std::filesystem;

namespace {

/// Notes the sizes of the files of a tree, and reads none.
struct SizeSink
{
    struct Folder
    {};

    static Folder addFolder(const Folder & /*parent*/, const std::string & /*name*/) { return {}; }
    static void addFile(const Place & /*place*/, const File &file, const Folder & /*parent*/,
                        FileTreeSnapshot::Entry &entry)
    {
        entry.size = file.size();
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

bool haveEqualBytes(const FileSystem &files, const File &one, const File &other)
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

SharedFiles::SharedFiles(FileSystem &files, const fs::path &history, std::span<const std::string> entries,
                         FileDigests &known)
    : m_files(files), m_known(known)
{
    for (const std::string &entry : entries) {
        bestEffort([&] {
            TreeWalk walk(files, TreeFilter::all, SizeSink());
            walk.run(files.openFolder(history / entry), {});
            const FileTreeSnapshot tree = walk.finish(history / entry);
            for (const FileTreeSnapshot::Entry &file : tree.entries) {
                if (tree.isWhole && file.size > 0 && file.relativePath != SkillFiles::manifest)
                    m_bySize[file.size].push_back({history / entry, file.relativePath});
            }
        });
    }
}

void SharedFiles::copyTree(const fs::path &source, const fs::path &destination, TreeFilter filter) const
{
    SecureFileTree::copyTree(m_files, source, destination, filter,
                             [this](const SecureFileTree::CopiedFile &copied, const Place &copy) {
                                 return share(copied.file, copied.relativePath, copy);
                             });
}

/// The file of the same path is the likeliest; any other may be the same under its former name.
bool SharedFiles::share(const File &file, const std::string &relativePath, const Place &to) const
{
    constexpr std::size_t most = 8; // of one size: to look through more costs more than it spares
    const auto found = m_bySize.find(file.size());
    if (found == m_bySize.end())
        return false;
    const auto isOfThatPath = [&](const Held &held) { return held.relativePath == relativePath; };
    const auto isShared = [&](const Held &held) { return shareIfEqual(file, held, to); };
    return std::ranges::any_of(found->second | std::views::filter(isOfThatPath), isShared) ||
           std::ranges::any_of(found->second | std::views::take(most), isShared);
}

/// Those whose digests are known need not be read again.
bool SharedFiles::areEqual(const File &one, const File &other) const
{
    const std::optional<std::string> digest = m_known.find(one);
    const std::optional<std::string> otherDigest = m_known.find(other);
    return digest && otherDigest ? digest == otherDigest : haveEqualBytes(m_files, one, other);
}

/// False also where the file can't be shared: it is copied then.
bool SharedFiles::shareIfEqual(const File &file, const Held &held, const Place &to) const
{
    bool isShared = false;
    bestEffort([&] {
        const fs::path path = held.root / held.relativePath;
        const Folder folder = m_files.openFolder(path.parent_path());
        if (areEqual(file, m_files.openFile(folder, path.filename()))) {
            m_files.share({folder, path.filename()}, to);
            isShared = true;
        }
    });
    return isShared;
}

} // namespace vornel

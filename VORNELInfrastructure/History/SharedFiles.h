#pragma once

#include <VORNELInfrastructure/Disk/FileSystem.h>
#include <VORNELInfrastructure/Tree/FileDigests.h>
#include <VORNELInfrastructure/Tree/FileTreeSnapshot.h>

#include <map>
#include <span>
#include <string>
#include <vector>

namespace vornel {

/// Files that entries of a history hold, for other entries of the same history to share: what is equal, byte
/// for byte or by its digest, is kept once. What others may edit never shares anything.
class SharedFiles
{
public:
    /// An entry that can't be read has nothing to share. Nor has one with hidden entries: it is a folder that
    /// somebody has worked in, and may still have open.
    SharedFiles(FileSystem &files, const std::filesystem::path &history, std::span<const std::string> entries,
                FileDigests &known);

    /// Does what `SecureFileTree::copyTree` does, and shares what it can instead of copying it.
    void copyTree(const std::filesystem::path &source, const std::filesystem::path &destination,
                  TreeFilter filter) const;

private:
    struct Held
    {
        std::filesystem::path root; ///< of the entry
        std::string relativePath;
    };

    bool share(const File &file, const std::string &relativePath, const Place &to) const;
    bool areEqual(const File &one, const File &other) const;
    bool shareIfEqual(const File &file, const Held &held, const Place &to) const;

    FileSystem &m_files;
    FileDigests &m_known;
    std::map<std::int64_t, std::vector<Held>>
        m_bySize; ///< the files but the manifest, and none that is empty
};

} // namespace vornel

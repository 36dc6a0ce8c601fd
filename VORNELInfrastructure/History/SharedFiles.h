#pragma once

#include <VORNELInfrastructure/Disk/FileSystem.h>
#include <VORNELInfrastructure/Tree/FileDigests.h>
#include <VORNELInfrastructure/Tree/FileTreeSnapshot.h>

#include <map>
#include <span>
#include <string>

namespace vornel {

/// Files that entries of a history hold, for other entries of the same history to share: what has the same
/// digest is kept once. What others may edit never shares anything.
class SharedFiles
{
public:
    /// An entry that can't be read has nothing to share. Nor has one with hidden entries: it is a folder that
    /// somebody has worked in, and may still have open.
    SharedFiles(FileSystem &files, const std::filesystem::path &history, std::span<const std::string> entries,
                FileDigests &known);

    /// Copies what was read of a tree to a new folder, and shares what it can instead of copying it.
    void copyTree(const FileTreeSnapshot &source, const std::filesystem::path &destination) const;

private:
    FileSystem &m_files;
    std::map<std::string, std::filesystem::path>
        m_byDigest; ///< the files but the manifest, and none that is empty
};

} // namespace vornel

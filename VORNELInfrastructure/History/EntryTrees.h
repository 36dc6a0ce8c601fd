#pragma once

#include <VORNELInfrastructure/Disk/FileSystem.h>
#include <VORNELInfrastructure/Tree/FileDigests.h>
#include <VORNELInfrastructure/Tree/FileTreeSnapshot.h>

#include <filesystem>
#include <map>
#include <memory>
#include <mutex>

namespace vornel {

/// The trees of the entries that an operation has read in histories: an entry stays as it is once it is in
/// its place, so one reading serves the whole operation. May be used from several threads.
class EntryTrees
{
public:
    using Tree = std::shared_ptr<const FileTreeSnapshot>;

    /// To be called when an operation begins: others may have worked there since the last one.
    void beginOperation();

    /// All that is visible in an entry. Throws what reading it does.
    Tree read(const FileSystem &files, const std::filesystem::path &entry, FileDigests &known);

    /// Whether the entry was read in this operation.
    bool isRead(const std::filesystem::path &entry);

private:
    std::mutex m_mutex;
    std::map<std::filesystem::path, Tree> m_trees;
};

} // namespace vornel

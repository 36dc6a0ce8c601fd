#pragma once

#include <VORNELInfrastructure/Tree/FileTreeSnapshot.h>

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace vornel {

/// Files that entries of a history hold, for other entries of the same history to share: what has the same
/// digest is kept once. What others may edit never shares anything.
class SharedFiles
{
public:
    using Tree = std::shared_ptr<const FileTreeSnapshot>;

    /// The files of these entries, which are on the disk. `read` reads one, and returns nothing where that
    /// can't be done: the first, and the others only where much is missing in those before.
    SharedFiles(std::vector<std::filesystem::path> entries,
                std::function<Tree(const std::filesystem::path &)> read);

    /// The path of a file with the same bytes; empty where there is none.
    std::string find(const FileTreeSnapshot::Entry &file);

private:
    void readNext();

    std::vector<std::filesystem::path> m_unread; ///< the next one last
    std::function<Tree(const std::filesystem::path &)> m_read;
    std::map<std::string, std::string> m_byDigest; ///< the files but the manifest, and none that is empty
};

} // namespace vornel

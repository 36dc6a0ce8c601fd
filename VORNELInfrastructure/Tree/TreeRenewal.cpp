#include "TreeRenewal.h"

#include "SecureFileTree.h"

#include <VORNELInfrastructure/Disk/BestEffort.h>

#include <algorithm>

namespace vornel {

namespace fs = std::filesystem;

namespace {

using Entry = FileTreeSnapshot::Entry;

/// The digest of a file at a path of a tree; nothing where there is none.
std::optional<std::string> digestAt(const FileTreeSnapshot &tree, const std::string &path)
{
    const auto found = std::ranges::lower_bound(tree.entries, path, {}, &Entry::relativePath);
    return found != tree.entries.end() && found->relativePath == path ? found->fileDigest : std::nullopt;
}

/// False where the file has to be copied.
bool isTakenOver(FileSystem &files, const fs::path &file, const Place &to)
{
    bool isShared = false;
    bestEffort([&] {
        const Folder folder = files.openFolder(file.parent_path());
        const std::optional<DiskUse> use = files.useOf(folder, file.filename());
        if (!use || use->names != 1)
            return;
        files.share({folder, file.filename()}, to);
        isShared = true;
    });
    return isShared;
}

} // namespace

void renewTree(FileSystem &files, const FileTreeSnapshot &source, const FileTreeSnapshot &former,
               const fs::path &destination, TreeFilter filter)
{
    SecureFileTree::copyTree(files, source.root, destination, filter,
                             [&](const SecureFileTree::CopiedFile &copied, const Place &copy) {
                                 const std::optional<std::string> digest =
                                     digestAt(source, copied.relativePath);
                                 return digest && digest == digestAt(former, copied.relativePath) &&
                                        isTakenOver(files, former.root / copied.relativePath, copy);
                             });
}

} // namespace vornel

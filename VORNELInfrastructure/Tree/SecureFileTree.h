#pragma once

#include "FileDigests.h"
#include "FileTreeSnapshot.h"

#include <VORNELInfrastructure/Disk/FileSystem.h>

/// Fingerprints and copies skill folders, and refuses whatever is unsafe. Throws `symlinkUnsupported` for a
/// link anywhere in the tree, also where the filter would leave it out; `unsafeImport` for a file above 25
/// MiB, for what is neither file nor folder, for a name that is not UTF-8 and for folders nested too deep;
/// `invalidPath` for a reserved name; `filesystem_error` for the rest. Of several errors, the first is
/// thrown: entries are visited by name, a folder's content before the entry after it.
namespace vornel::SecureFileTree {

/// Reads the whole tree, but for the files whose digests are known. Throws `integrityFailure` when `root` is
/// not a folder.
FileTreeSnapshot snapshot(const FileSystem &files, const std::filesystem::path &root, TreeFilter filter,
                          FileDigests *known = nullptr);

FileTreeSnapshot snapshot(const FileSystem &files, const Folder &parent, const std::string &name,
                          TreeFilter filter, FileDigests *known = nullptr);

/// Copies the filtered tree of `source` into the new folder `destination` (folders 700, files 600). Throws
/// `integrityFailure` when something stands there already. A failed copy leaves nothing behind.
void copyTree(FileSystem &files, const std::filesystem::path &source,
              const std::filesystem::path &destination, TreeFilter filter);

/// The same, and a snapshot of the very bytes that were copied.
FileTreeSnapshot copyTreeAndSnapshot(FileSystem &files, const std::filesystem::path &source,
                                     const std::filesystem::path &destination, TreeFilter filter);

/// The same for a folder in an open one. The snapshot is that of the copy.
FileTreeSnapshot copyTreeAndSnapshot(FileSystem &files, const Folder &parent, const std::string &name,
                                     const std::filesystem::path &destination, TreeFilter filter);

} // namespace vornel::SecureFileTree

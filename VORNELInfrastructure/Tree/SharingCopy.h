#pragma once

#include "FileTreeSnapshot.h"

#include <VORNELInfrastructure/Disk/TreeOperations.h>

#include <functional>

namespace vornel {

/// Where a file stands that has the bytes of an entry; empty where there is none.
using PlaceOfBytes = std::function<std::filesystem::path(const FileTreeSnapshot::Entry &)>;

/// Makes a folder, at a path where nothing stands, of what was read of a tree. A file that stands elsewhere,
/// too, is shared, or copied where it can't be. Throws `unsafeImport` for a file that has become too large.
/// Returns what is to be flushed if all that was shared is on the disk.
Unflushed copySharing(FileSystem &files, const FileTreeSnapshot &source,
                      const std::filesystem::path &destination, const PlaceOfBytes &sameFile);

/// The same of entries whose files stand at any places; a folder comes before what it holds.
Unflushed copySharing(FileSystem &files, const std::vector<FileTreeSnapshot::Entry> &entries,
                      const PlaceOfBytes &source, const std::filesystem::path &destination,
                      const PlaceOfBytes &sameFile);

/// The same for a folder that is to take the place of a former one, which is deleted then: the new one takes
/// over what the former one holds already. Until then, that has two names; a file that has further names
/// already is copied.
void copyTakingOver(FileSystem &files, const FileTreeSnapshot &source, const FileTreeSnapshot &former,
                    const std::filesystem::path &destination);

} // namespace vornel

#pragma once

#include "FileTreeSnapshot.h"

#include <VORNELInfrastructure/Disk/FileSystem.h>

namespace vornel {

/// Copies what was read of a tree to a new folder, which is to take the place of a former tree that is
/// deleted then. What the former tree holds already isn't written anew: the copy takes the file itself over,
/// which has two names until the former tree is gone. A file that has further names already is copied.
void renewTree(FileSystem &files, const FileTreeSnapshot &source, const FileTreeSnapshot &former,
               const std::filesystem::path &destination, TreeFilter filter);

} // namespace vornel

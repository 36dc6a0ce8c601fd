#pragma once

#include "FileTreeSnapshot.h"

#include <VORNELCore/Records/CopyInspection.h>

namespace vornel {

/// What leads from one tree to another, by path: an entry of `after` alone is added, one of `before` alone
/// removed. A folder is listed only where nothing in it is.
QList<FileDifference> differences(const FileTreeSnapshot &before, const FileTreeSnapshot &after);

} // namespace vornel

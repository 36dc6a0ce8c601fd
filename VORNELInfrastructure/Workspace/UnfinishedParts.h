#pragma once

#include "Workspace.h"

#include <vector>

namespace vornel {

/// Whether this is a temporary name, of a file or folder that wasn't finished.
bool isUnfinished(const std::string &name);

/// What interrupted writes, and moves between volumes, have left in the roots, and the notes on skills in the
/// trash that aren't there. Not among the drafts: a window may be writing one just now.
std::vector<std::filesystem::path> unfinishedParts(const Workspace &workspace);

} // namespace vornel

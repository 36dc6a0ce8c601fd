#pragma once

#include "Workspace.h"

#include <vector>

namespace vornel {

/// Whether this is a name that is given to what isn't finished.
bool isUnfinished(const std::string &name);

/// What moves to another volume and writes that were cut short have left in the roots, and what is noted of
/// skills in the trash that aren't there. The drafts are the window's own, which may be writing one.
std::vector<std::filesystem::path> unfinishedParts(const Workspace &workspace);

} // namespace vornel

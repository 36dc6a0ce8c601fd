#pragma once

#include "Workspace.h"

#include <vector>

namespace vornel {

/// What moves to another volume and writes that were cut short have left in the roots, under the hidden names
/// that they give to what isn't finished.
std::vector<std::filesystem::path> unfinishedParts(const Workspace &workspace);

} // namespace vornel

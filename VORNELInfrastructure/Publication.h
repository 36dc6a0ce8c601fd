#pragma once

#include "FileSystem.h"

#include <exception>
#include <vector>

namespace vornel {

/// A staged folder on its way to the place where it is to be seen.
struct Publication
{
    std::filesystem::path staged;
    std::filesystem::path destination;

    /// Where the folder that stands at the destination goes, when there is one; without a name, nothing must
    /// stand there.
    std::filesystem::path parking;

    /// Afterwards, where the folder that was replaced stands now, out of sight; without a name when none was.
    std::filesystem::path former = {};

    std::exception_ptr failure = nullptr; ///< why it did not succeed: all stands where it stood
};

/// Puts the staged folders on the disk, then each in its place, then the new names on the disk. A folder that
/// is replaced is never missing where the volume can exchange two folders; elsewhere it is for the moment
/// between two renames. What fails with one publication is kept with it, and doesn't stop the others.
void publish(FileSystem &files, const std::vector<Publication *> &publications);

/// The same for one; throws its failure. Returns where the folder that was replaced stands now.
std::filesystem::path publish(FileSystem &files, Publication publication);

} // namespace vornel

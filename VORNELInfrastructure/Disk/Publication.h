#pragma once

#include "Stage.h"

#include <exception>
#include <vector>

namespace vornel {

/// A staged folder on its way to the place where it is to be seen.
struct Publication
{
    Stage stage;
    std::filesystem::path destination;

    /// Where the folder that stands at the destination goes, when there is one; without a name, nothing must
    /// stand there.
    std::filesystem::path parking = {};

    /// Where that folder is to be kept for good; without a name, it is the caller's to remove. On the disk it
    /// is there at the latest when it leaves the destination.
    std::filesystem::path keptAs = {};

    /// Afterwards, where the folder that was replaced stands now, for the caller to remove; without a name
    /// when none was, or it is kept. On the stage, it goes with it.
    std::filesystem::path former = {};

    std::exception_ptr failure = nullptr; ///< why it did not succeed: all stands where it stood
};

/// Puts the staged folders on the disk. If that fails, it fails for all.
void settle(FileSystem &files, const std::vector<Publication *> &publications);

/// Puts settled folders in their places, in this order, and then the new names on the disk; those that have
/// failed are passed over. A folder that is replaced is never missing where the volume can exchange two
/// folders; elsewhere it is for the moment between two renames. What fails with one publication is kept with
/// it, and doesn't stop the others.
void place(FileSystem &files, const std::vector<Publication *> &publications);

/// Settles and places one; throws its failure.
void publish(FileSystem &files, Publication &publication);

} // namespace vornel

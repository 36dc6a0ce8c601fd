#pragma once

#include "WorkspaceState.h"

namespace vornel {

/// What stood before an operation, what it makes, and what there is now.
struct Aftermath
{
    std::filesystem::path folder; ///< that holds the roots
    const WorkspaceState &before;
    const WorkspaceState &after; ///< once the operation is done
    WorkspaceState now;
    bool mustBeDone;
};

/// Checks that skills, their history, the catalog and the ignored names are whole, as before or as after.
void checkLibrary(const Aftermath &aftermath);

/// Checks that what is new in the history is right and shares no file with anything outside, and that nothing
/// unfinished is left.
void checkBookkeeping(const Aftermath &aftermath);

/// Checks that copies are whole, and that what isn't VORNEL's and what was set aside stays.
void checkTargets(const Aftermath &aftermath);

/// Checks that what was edited in the targets, or isn't VORNEL's, stands there or is kept.
void checkReplacedCopies(const Aftermath &aftermath);

/// Checks that a skill that stays has kept its copies, as it must unless a program was killed in the middle
/// of a swap.
void checkNoCopyIsMissing(const Aftermath &aftermath);

std::string idText(const SkillOnDisk &skill);

/// What copies hold of a skill's files.
Tree withoutManifest(Tree files);

} // namespace vornel

#pragma once

#include "Workspace.h"

namespace vornel {

/// Puts right what an interrupted operation left: a skill whose swap was cut short comes back from the
/// recovery folder, a deletion for good is finished, and abandoned staging folders and unfinished files are
/// removed. Copies that only the user can judge stay.
void recoverFromCrash(const Workspace &workspace);

/// The first part of that alone: an operation of another program may have been cut short since the start.
void bringBackSwappedFolders(const Workspace &workspace);

/// Whether there is anything to put right.
bool needsRecovery(const Workspace &workspace);

/// Deletes what interrupted swaps left of a skill, so that it can't come back once it is deleted for good.
void discardParkedFolders(const Workspace &workspace, const QUuid &id);

} // namespace vornel

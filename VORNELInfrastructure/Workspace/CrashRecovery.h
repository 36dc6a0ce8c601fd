#pragma once

#include "Workspace.h"

#include <set>
#include <string>

namespace vornel {

/// Puts right what an interrupted operation left: a skill whose replacement was cut short comes back from the
/// recovery folder, a deletion for good is finished, and abandoned staging folders and unfinished files are
/// removed. What only the user can judge stays in the recovery folder.
void recoverFromCrash(const Workspace &workspace);

/// Only brings back skills whose replacement was cut short, and finishes renames. This is repeated before
/// every change, as another program may have been interrupted since the start.
void restoreSkills(const Workspace &workspace);

/// Whether a skill was getting another slug when that was cut short: it can't be read then.
bool hasHalfRenamedSkills(const Workspace &workspace);

/// Puts these right, unless a newer version has written the workspace.
void finishRenames(const Workspace &workspace);

/// The names in the recovery folder with which `restoreSkills` has something to do.
std::set<std::string> backupsToSettle(const Workspace &workspace);

/// Whether there is anything to put right.
bool needsRecovery(const Workspace &workspace);

/// Deletes the backups of a skill that is deleted for good: otherwise the next start would bring it back.
void discardBackups(const Workspace &workspace, const QUuid &id);

} // namespace vornel

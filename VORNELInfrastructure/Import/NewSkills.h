#pragma once

#include <VORNELCore/Records/NewSkill.h>
#include <VORNELInfrastructure/Workspace/Workspace.h>

namespace vornel {

/// The skills of the assistants' folders that the library lacks, without those that the user wants to hear
/// nothing of. By target and name.
QList<NewSkill> newSkills(const Workspace &workspace);

/// Remembers that the user wants to hear nothing of these.
void ignoreNewSkills(const Workspace &workspace, const QList<NewSkill> &skills);

/// Forgets those of them that the library has by now, or that are gone: should they come again, the user is
/// told.
void forgetSettledSkills(const Workspace &workspace);

} // namespace vornel

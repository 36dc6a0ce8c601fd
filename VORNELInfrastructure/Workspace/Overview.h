#pragma once

#include <VORNELInfrastructure/Skills/SkillRecords.h>
#include <VORNELInfrastructure/Tree/FileTreeSnapshot.h>

namespace vornel {

/// Reads the whole workspace: active and trashed skills by display name, and the categories.
WorkspaceOverview makeOverview(const Workspace &workspace);

/// Reads one active skill whole. Throws `missingSkillFile` without a "SKILL.md".
SkillDetail makeDetail(const Workspace &workspace, const SkillRecord &skill);

/// The same for a skill of which all files have just been read.
SkillDetail makeDetail(const Workspace &workspace, const SkillRecord &skill, const FileTreeSnapshot &tree);

} // namespace vornel

#pragma once

#include <VORNELInfrastructure/Skills/SkillRecords.h>
#include <VORNELInfrastructure/Tree/FileTreeSnapshot.h>

namespace vornel {

/// Reads the whole workspace: active and trashed skills by display name, and the categories.
WorkspaceOverview makeOverview(const Workspace &workspace);

/// Reads all that is visible in a skill's folder as it is now. An error knows the folder that it is about.
FileTreeSnapshot folderTree(const Workspace &workspace, const SkillRecord &skill);

/// Reads one active skill whole. Throws `missingSkillFile` without a "SKILL.md".
SkillDetail makeDetail(const Workspace &workspace, const SkillRecord &skill);

/// The same for a skill of which all files have just been read.
SkillDetail makeDetail(const Workspace &workspace, const SkillRecord &skill, const FileTreeSnapshot &tree);

} // namespace vornel

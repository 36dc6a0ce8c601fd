#pragma once

#include <VORNELInfrastructure/Skills/SkillRecords.h>

namespace vornel {

/// Reads the whole workspace: active and trashed skills by display name, and the categories.
WorkspaceOverview makeOverview(const Workspace &workspace);

/// Reads one active skill whole. Throws `missingSkillFile` without a "SKILL.md".
SkillDetail makeDetail(const Workspace &workspace, const SkillRecord &skill);

} // namespace vornel

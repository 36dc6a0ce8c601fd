#pragma once

#include "SkillRecords.h"

namespace vornel {

/// How the installed copies of an active skill stand: `failed` after a failed synchronisation, else `missing`
/// when a copy is missing, `drifted` when the content of one differs, `inSync` otherwise. Throws what the
/// walk over a copy throws.
SyncState syncState(const Workspace &workspace, const SkillRecord &skill);

/// Reads the whole workspace: active and trashed skills by display name, and the categories.
WorkspaceOverview makeOverview(const Workspace &workspace);

/// Reads one active skill whole. Throws `missingSkillFile` without a "SKILL.md".
SkillDetail makeDetail(const Workspace &workspace, const SkillRecord &skill);

} // namespace vornel

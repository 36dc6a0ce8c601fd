#pragma once

#include "TargetFolder.h"

#include <VORNELCore/Records/WorkspaceModels.h>

namespace vornel {

/// How the copies of a skill stand together.
struct CopyStates
{
    SyncState state = SyncState::unknown;
    CopyFindings findings = {};
};

/// Compares the installed copies of skills with the canonical ones. May be asked from several threads.
class SyncInspector
{
public:
    explicit SyncInspector(const Workspace &workspace);

    /// `failed` after a failed synchronisation, else `missing` when a copy is missing, `drifted` when the
    /// content of one differs, `inSync` otherwise. What the walk over a copy throws is thrown or, where it
    /// concerns its skill alone, makes it `failed`.
    CopyStates states(const SkillManifest &manifest) const;

private:
    std::string canonicalDigest(const std::string &name) const;

    const Workspace &m_workspace;
    Folder m_skills;
    std::vector<TargetFolder> m_targets;
};

} // namespace vornel

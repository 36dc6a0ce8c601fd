#pragma once

#include "TargetFolder.h"

#include <VORNELCore/WorkspaceModels.h>

namespace vornel {

/// Compares the installed copies of skills with the canonical ones. May be asked from several threads.
class SyncInspector
{
public:
    explicit SyncInspector(const Workspace &workspace);

    /// `failed` after a failed synchronisation, else `missing` when a copy is missing, `drifted` when the
    /// content of one differs, `inSync` otherwise. Throws what the walk over a copy throws.
    SyncState state(const SkillManifest &manifest) const;

private:
    const Workspace &m_workspace;
    Folder m_skills;
    std::vector<TargetFolder> m_targets;
};

} // namespace vornel

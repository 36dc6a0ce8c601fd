#pragma once

#include "Workspace.h"

#include <VORNELCore/WorkspaceModels.h>

#include <optional>

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
    std::optional<Folder> openIfPresent(const Folder &parent, const std::string &name) const;
    std::string digest(const Folder &folder) const;

    const Workspace &m_workspace;
    Folder m_skills;
    std::vector<std::optional<Folder>> m_targets; ///< the assistants' folders, as far as they exist
};

} // namespace vornel

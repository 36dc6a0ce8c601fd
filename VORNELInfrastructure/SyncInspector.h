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
    /// The assistant's folder; nothing where none can be seen, so that its copies are missing.
    std::optional<Folder> openTarget(const std::filesystem::path &root) const;
    std::string digest(const Folder &parent, const std::string &name) const;

    const Workspace &m_workspace;
    Folder m_skills;
    std::vector<std::optional<Folder>> m_targets;
};

} // namespace vornel

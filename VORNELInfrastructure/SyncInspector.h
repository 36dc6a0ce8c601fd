#pragma once

#include "Workspace.h"

#include <VORNELCore/WorkspaceModels.h>

#include <exception>
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
    /// An assistant's folder; none where none can be seen, so that every copy in it is missing.
    struct Target
    {
        std::optional<Folder> folder;
        std::exception_ptr failure; ///< why it may not be looked at, thrown when it has to be
    };

    std::optional<Folder> openTarget(const std::filesystem::path &root) const;

    /// The digest of a copy's content; nothing where no copy is.
    std::optional<std::string> digest(const Folder &parent, const std::string &name) const;

    const Workspace &m_workspace;
    Folder m_skills;
    std::vector<Target> m_targets;
};

} // namespace vornel

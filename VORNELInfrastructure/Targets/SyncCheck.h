#pragma once

#include "TargetFolder.h"

#include <VORNELCore/Records/WorkspaceModels.h>

namespace vornel {

/// Compares the copies of skills with their canonical folders by digest alone. `CopyInspector` tells what
/// differs. May be asked from several threads.
class SyncCheck
{
public:
    struct Result
    {
        SyncState state = SyncState::unknown;
        CopyFindings findings = {};
    };

    explicit SyncCheck(const Workspace &workspace);

    /// The skill is `failed` after a failed synchronisation, else `missing` when a copy is missing, `drifted`
    /// when the content of one differs, `inSync` otherwise. A failure to read a copy is thrown, or makes the
    /// skill `failed` where the workspace's `FailureScope` is `Skill`.
    Result of(const SkillManifest &manifest) const;

    /// The same for a skill whose content has this digest. Files whose digests are known aren't read.
    Result of(const SkillManifest &manifest, const std::string &canonical, FileDigests *known) const;

private:
    std::string canonicalDigest(const std::string &name) const;

    const Workspace &m_workspace;
    Folder m_skills;
    std::vector<TargetFolder> m_targets;
};

} // namespace vornel

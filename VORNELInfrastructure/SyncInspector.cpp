#include "SyncInspector.h"

#include "SecureFileTree.h"

namespace vornel {

SyncInspector::SyncInspector(const Workspace &workspace)
    : m_workspace(workspace), m_skills(workspace.files.openFolder(workspace.config.skills()))
{
    for (const TargetKind kind : allCases<TargetKind>())
        m_targets.emplace_back(workspace, kind);
}

SyncState SyncInspector::state(const SkillManifest &manifest) const
{
    if (m_workspace.failedSyncTargets.contains(manifest.id))
        return SyncState::failed;

    const std::string name = manifest.slug.toStdString();
    const std::string canonical =
        SecureFileTree::snapshot(m_workspace.files, m_skills, name, TreeFilter::excludingManifest).digest;
    bool isMissing = false;
    bool hasDrifted = false;
    for (const TargetFolder &target : m_targets) {
        if (hasDrifted) {
            isMissing = !target.kindOf(name) || isMissing;
            continue;
        }
        const std::optional<FileTreeSnapshot> copy = target.snapshot(name);
        isMissing = isMissing || !copy;
        hasDrifted = copy && copy->digest != canonical;
    }
    if (isMissing)
        return SyncState::missing;
    return hasDrifted ? SyncState::drifted : SyncState::inSync;
}

} // namespace vornel

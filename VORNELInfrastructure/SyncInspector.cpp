#include "SyncInspector.h"

#include "SecureFileTree.h"

namespace vornel {

SyncInspector::SyncInspector(const Workspace &workspace)
    : m_workspace(workspace), m_skills(workspace.files.openFolder(workspace.config.skills()))
{
    for (const TargetKind kind : allCases<TargetKind>())
        m_targets.push_back(openTarget(workspace.config.target(kind)));
}

std::optional<Folder> SyncInspector::openTarget(const std::filesystem::path &root) const
try {
    refuseLinkedRoot(m_workspace.files, root);
    if (m_workspace.files.kindAt(root) != FileKind::Directory)
        return std::nullopt;
    return m_workspace.files.openFolder(root);
} catch (const std::filesystem::filesystem_error &error) {
    if (error.code() == std::errc::permission_denied)
        return std::nullopt;
    throw;
}

SyncState SyncInspector::state(const SkillManifest &manifest) const
{
    if (m_workspace.failedSyncTargets.contains(manifest.id))
        return SyncState::failed;

    const std::string name = manifest.slug.toStdString();
    const std::string canonical = digest(m_skills, name);
    bool isMissing = false;
    bool hasDrifted = false;
    for (const std::optional<Folder> &target : m_targets) {
        if (!target || !m_workspace.files.kindAt(*target, name))
            isMissing = true;
        else
            hasDrifted = hasDrifted || digest(*target, name) != canonical;
    }
    if (isMissing)
        return SyncState::missing;
    return hasDrifted ? SyncState::drifted : SyncState::inSync;
}

std::string SyncInspector::digest(const Folder &parent, const std::string &name) const
{
    return SecureFileTree::snapshot(m_workspace.files, parent, name, TreeFilter::excludingManifest).digest;
}

} // namespace vornel

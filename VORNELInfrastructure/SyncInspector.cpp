#include "SyncInspector.h"

#include "SecureFileTree.h"

namespace vornel {

SyncInspector::SyncInspector(const Workspace &workspace)
    : m_workspace(workspace), m_skills(workspace.files.openFolder(workspace.config.skills()))
{
    for (const TargetKind kind : allCases<TargetKind>()) {
        const std::filesystem::path &root = workspace.config.target(kind);
        refuseLinkedRoot(workspace.files, root);
        std::optional<Folder> &target = m_targets.emplace_back();
        if (workspace.files.kindAt(root) == FileKind::Directory)
            target = workspace.files.openFolder(root);
    }
}

SyncState SyncInspector::state(const SkillManifest &manifest) const
{
    if (m_workspace.failedSyncTargets.contains(manifest.id))
        return SyncState::failed;

    const std::string name = manifest.slug.toStdString();
    const std::string canonical = digest(m_workspace.files.openFolder(m_skills, name));
    bool isMissing = false;
    bool hasDrifted = false;
    for (const std::optional<Folder> &target : m_targets) {
        const std::optional<Folder> copy = target ? openIfPresent(*target, name) : std::nullopt;
        isMissing = isMissing || !copy;
        hasDrifted = hasDrifted || (copy && digest(*copy) != canonical);
    }
    if (isMissing)
        return SyncState::missing;
    return hasDrifted ? SyncState::drifted : SyncState::inSync;
}

std::optional<Folder> SyncInspector::openIfPresent(const Folder &parent, const std::string &name) const
try {
    return m_workspace.files.openFolder(parent, name);
} catch (const std::filesystem::filesystem_error &error) {
    if (error.code() == std::errc::no_such_file_or_directory)
        return std::nullopt;
    throw;
}

std::string SyncInspector::digest(const Folder &folder) const
{
    return SecureFileTree::snapshot(m_workspace.files, folder, TreeFilter::excludingManifest).digest;
}

} // namespace vornel

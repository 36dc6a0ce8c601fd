#include "SyncInspector.h"

#include "SecureFileTree.h"

#include <VORNELCore/VORNELWorkspaceError.h>

namespace vornel {

namespace {

std::string contentDigest(const FileSystem &files, const Folder &parent, const std::string &name)
{
    return SecureFileTree::snapshot(files, parent, name, TreeFilter::excludingManifest).digest;
}

} // namespace

SyncInspector::SyncInspector(const Workspace &workspace)
    : m_workspace(workspace), m_skills(workspace.files.openFolder(workspace.config.skills()))
{
    for (const TargetKind kind : allCases<TargetKind>()) {
        Target &target = m_targets.emplace_back();
        try {
            target.folder = openTarget(workspace.config.target(kind));
        } catch (const VORNELWorkspaceError &) {
            target.failure = std::current_exception();
        }
    }
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
    const std::string canonical = contentDigest(m_workspace.files, m_skills, name);
    bool isMissing = false;
    bool hasDrifted = false;
    for (const Target &target : m_targets) {
        if (target.failure)
            std::rethrow_exception(target.failure);
        if (hasDrifted || !target.folder) {
            isMissing = isMissing || !target.folder || !m_workspace.files.kindAt(*target.folder, name);
            continue;
        }
        const std::optional<std::string> copy = digest(*target.folder, name);
        isMissing = isMissing || !copy;
        hasDrifted = copy && *copy != canonical;
    }
    if (isMissing)
        return SyncState::missing;
    return hasDrifted ? SyncState::drifted : SyncState::inSync;
}

std::optional<std::string> SyncInspector::digest(const Folder &parent, const std::string &name) const
try {
    return contentDigest(m_workspace.files, parent, name);
} catch (const std::filesystem::filesystem_error &error) {
    if (error.code() == std::errc::no_such_file_or_directory && !m_workspace.files.kindAt(parent, name))
        return std::nullopt;
    throw;
}

} // namespace vornel

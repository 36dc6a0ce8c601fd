#include "SyncInspector.h"

#include "Locating.h"
#include "SecureFileTree.h"

#include <VORNELCore/ErrorMessage.h>

namespace vornel {

SyncInspector::SyncInspector(const Workspace &workspace)
    : m_workspace(workspace), m_skills(workspace.files.openFolder(workspace.config.skills()))
{
    for (const TargetKind kind : allCases<TargetKind>())
        m_targets.emplace_back(workspace, kind);
}

std::string SyncInspector::canonicalDigest(const std::string &name) const
{
    return locating(m_workspace, m_workspace.config.skills() / name, [&] {
        return SecureFileTree::snapshot(m_workspace.files, m_skills, name, TreeFilter::excludingManifest)
            .digest;
    });
}

CopyStates SyncInspector::states(const SkillManifest &manifest) const
{
    if (m_workspace.failedSyncTargets.contains(manifest.id))
        return {SyncState::failed};

    const std::string name = manifest.slug.toStdString();
    const std::string canonical = canonicalDigest(name);
    const bool isTolerant = m_workspace.failureScope == FailureScope::Skill;
    TargetReasons unreadable;
    bool isMissing = false;
    bool hasDrifted = false;
    for (const TargetFolder &target : m_targets) {
        if (hasDrifted && !isTolerant) {
            isMissing = !target.kindOf(name) || isMissing;
            continue;
        }
        try {
            const std::optional<FileTreeSnapshot> copy = target.snapshot(name);
            isMissing = isMissing || !copy;
            hasDrifted = hasDrifted || (copy && copy->digest != canonical);
        } catch (const std::exception &error) {
            if (!isTolerant)
                throw;
            unreadable.insert(target.kind(), errorMessage(error));
        }
    }
    if (!unreadable.isEmpty())
        return {SyncState::failed, unreadable};
    if (isMissing)
        return {SyncState::missing};
    return {hasDrifted ? SyncState::drifted : SyncState::inSync};
}

} // namespace vornel

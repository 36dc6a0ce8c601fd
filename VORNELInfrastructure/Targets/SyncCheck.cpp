#include "SyncCheck.h"

#include <VORNELCore/Errors/ErrorMessage.h>
#include <VORNELInfrastructure/Tree/SecureFileTree.h>
#include <VORNELInfrastructure/Workspace/Locating.h>

namespace vornel {

SyncCheck::SyncCheck(const Workspace &workspace)
    : m_workspace(workspace), m_skills(workspace.files.openFolder(workspace.config.skills()))
{
    for (const TargetKind kind : allCases<TargetKind>())
        m_targets.emplace_back(workspace, kind);
}

std::string SyncCheck::canonicalDigest(const std::string &name) const
{
    return locating(m_workspace, m_workspace.config.skills() / name, [&] {
        return SecureFileTree::snapshot(m_workspace.files, m_skills, name, TreeFilter::excludingManifest)
            .digest;
    });
}

SyncCheck::Result SyncCheck::of(const SkillManifest &manifest) const
{
    if (m_workspace.failedSyncTargets.contains(manifest.id))
        return {SyncState::failed};
    return of(manifest, canonicalDigest(manifest.slug.toStdString()), nullptr);
}

SyncCheck::Result SyncCheck::of(const SkillManifest &manifest, const std::string &canonical,
                                FileDigests *known) const
{
    if (m_workspace.failedSyncTargets.contains(manifest.id))
        return {SyncState::failed};
    const std::string name = manifest.slug.toStdString();
    const bool isTolerant = m_workspace.failureScope == FailureScope::Skill;
    CopyFindings found;
    bool isMissing = false;
    for (const TargetFolder &target : m_targets) {
        if (!found.drifted.isEmpty() && !isTolerant) {
            isMissing = !target.kindOf(name) || isMissing;
            continue;
        }
        try {
            const std::optional<FileTreeSnapshot> copy = target.snapshot(name, known);
            isMissing = isMissing || !copy;
            if (copy && copy->digest != canonical)
                found.drifted.insert(target.kind(), copy->digest);
        } catch (const std::exception &error) {
            if (!isTolerant)
                throw;
            found.unreadable.insert(target.kind(), errorMessage(error));
        }
    }
    if (!found.unreadable.isEmpty())
        return {SyncState::failed, {.unreadable = found.unreadable}};
    if (isMissing)
        return {SyncState::missing};
    if (!found.drifted.isEmpty())
        return {SyncState::drifted, found};
    return {SyncState::inSync};
}

} // namespace vornel

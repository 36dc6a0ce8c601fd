#include "Overview.h"

#include "Locating.h"

#include <VORNELInfrastructure/Categories/CategoryCatalog.h>
#include <VORNELInfrastructure/Skills/SkillFolderStore.h>
#include <VORNELInfrastructure/Targets/SyncCheck.h>
#include <VORNELInfrastructure/Tree/ParallelMap.h>
#include <VORNELInfrastructure/Tree/SecureFileTree.h>

namespace vornel {

namespace {

void remember(const Workspace &workspace, const QUuid &id, const CopyFindings &findings)
{
    if (findings.unreadable.isEmpty() && findings.drifted.isEmpty())
        workspace.foundCopies.remove(id);
    else
        workspace.foundCopies.insert(id, findings);
}

QString textOf(const Workspace &workspace, const SkillRecord &skill)
{
    return locating(workspace, skill.folder, [&] {
        return SkillFolderStore(workspace).readSkillMD(skill.folder, skill.manifest.slug);
    });
}

SkillDetail detailOf(const Workspace &workspace, const SkillRecord &skill, const QString &skillMD,
                     const FileTreeSnapshot &tree)
{
    SkillDetail detail;
    detail.manifest = skill.manifest;
    detail.skillMD = skillMD;
    detail.relativeFiles = tree.relativeFiles();
    detail.contentRevision = QString::fromStdString(tree.digest);
    const SyncCheck::Result check =
        SyncCheck(workspace).of(skill.manifest, tree.contentDigest(), &workspace.digests);
    detail.syncState = check.state;
    remember(workspace, skill.manifest.id, check.findings);
    return detail;
}

} // namespace

WorkspaceOverview makeOverview(const Workspace &workspace)
{
    const SyncCheck check(workspace);
    const QList<SkillRecord> records = byName(activeManifests(workspace));
    const std::vector<SyncCheck::Result> results =
        parallelMap(records, [&check](const SkillRecord &skill) { return check.of(skill.manifest); });
    QList<SkillSummary> active;
    workspace.foundCopies.clear();
    for (std::size_t index = 0; index < results.size(); ++index) {
        const SkillManifest &manifest = records.at(static_cast<qsizetype>(index)).manifest;
        active.append({manifest, results[index].state});
        remember(workspace, manifest.id, results[index].findings);
    }
    QList<SkillSummary> trashed;
    for (const SkillRecord &skill : byName(trashedManifests(workspace)))
        trashed.append({skill.manifest, SyncState::unknown});
    return {workspace.config.workspace, active, trashed, readCategoryCatalog(workspace).categories};
}

FileTreeSnapshot folderTree(const Workspace &workspace, const SkillRecord &skill)
{
    return locating(workspace, skill.folder, [&] {
        return SecureFileTree::snapshot(workspace.files, skill.folder, TreeFilter::all, &workspace.digests);
    });
}

SkillDetail makeDetail(const Workspace &workspace, const SkillRecord &skill)
{
    const QString skillMD = textOf(workspace, skill); // which is the first to be missed
    return detailOf(workspace, skill, skillMD, folderTree(workspace, skill));
}

SkillDetail makeDetail(const Workspace &workspace, const SkillRecord &skill, const FileTreeSnapshot &tree)
{
    return detailOf(workspace, skill, textOf(workspace, skill), tree);
}

} // namespace vornel

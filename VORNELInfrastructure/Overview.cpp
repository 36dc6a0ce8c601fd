#include "Overview.h"

#include "CategoryCatalog.h"
#include "ParallelMap.h"
#include "SecureFileTree.h"
#include "SkillFolderStore.h"

#include <VORNELCore/LocaleText.h>

#include <algorithm>

namespace vornel {

namespace fs = std::filesystem;

namespace {

QList<SkillSummary> sortedByName(const std::vector<SkillSummary> &summaries)
{
    QList<SkillSummary> sorted(summaries.begin(), summaries.end());
    std::ranges::stable_sort(sorted, [](const SkillSummary &a, const SkillSummary &b) {
        return LocaleText::standardCompare(a.displayName, b.displayName) < 0;
    });
    return sorted;
}

} // namespace

SyncState syncState(const Workspace &workspace, const SkillRecord &skill)
{
    if (workspace.failedSyncTargets.contains(skill.manifest.id))
        return SyncState::failed;

    const auto digest = [&workspace](const fs::path &folder) {
        return SecureFileTree::snapshot(workspace.files, folder, TreeFilter::excludingManifest).digest;
    };
    const std::string canonical = digest(skill.url);
    bool isMissing = false;
    bool hasDrifted = false;
    for (const TargetKind kind : allCases<TargetKind>()) {
        const fs::path copy = workspace.config.target(kind) / skill.url.filename();
        if (!workspace.files.kindAt(copy))
            isMissing = true;
        else
            hasDrifted = hasDrifted || digest(copy) != canonical;
    }
    if (isMissing)
        return SyncState::missing;
    return hasDrifted ? SyncState::drifted : SyncState::inSync;
}

WorkspaceOverview makeOverview(const Workspace &workspace)
{
    const auto active = parallelMap(activeManifests(workspace), [&workspace](const SkillRecord &skill) {
        return SkillSummary(skill.manifest, syncState(workspace, skill));
    });
    std::vector<SkillSummary> trashed;
    for (const SkillRecord &skill : trashedManifests(workspace))
        trashed.emplace_back(skill.manifest, SyncState::unknown);
    return {workspace.config.workspace, sortedByName(active), sortedByName(trashed),
            readCategoryCatalog(workspace).categories};
}

SkillDetail makeDetail(const Workspace &workspace, const SkillRecord &skill)
{
    const QString text = SkillFolderStore(workspace).readSkillMD(skill.url, skill.manifest.slug);
    const FileTreeSnapshot tree = SecureFileTree::snapshot(workspace.files, skill.url, TreeFilter::all);
    return {skill.manifest, text, tree.relativeFiles(), QString::fromStdString(tree.digest),
            syncState(workspace, skill)};
}

} // namespace vornel

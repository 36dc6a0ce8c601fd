#include "Overview.h"

#include "CategoryCatalog.h"
#include "ParallelMap.h"
#include "SecureFileTree.h"
#include "SkillFolderStore.h"
#include "SyncInspector.h"

#include <VORNELCore/LocaleText.h>

#include <algorithm>

namespace vornel {

namespace {

QList<SkillSummary> sortedByName(const std::vector<SkillSummary> &summaries)
{
    struct Keyed
    {
        QCollatorSortKey key;
        const SkillSummary *summary;
    };
    std::vector<Keyed> order = parallelMap(summaries, [](const SkillSummary &summary) {
        return Keyed{LocaleText::sortKey(summary.displayName), &summary};
    });
    std::ranges::stable_sort(order, [](const Keyed &a, const Keyed &b) { return a.key < b.key; });
    QList<SkillSummary> sorted;
    sorted.reserve(static_cast<qsizetype>(order.size()));
    for (const Keyed &next : order)
        sorted.append(*next.summary);
    return sorted;
}

} // namespace

WorkspaceOverview makeOverview(const Workspace &workspace)
{
    const SyncInspector inspector(workspace);
    const auto active = parallelMap(activeManifests(workspace), [&inspector](const SkillRecord &skill) {
        return SkillSummary(skill.manifest, inspector.state(skill.manifest));
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
            SyncInspector(workspace).state(skill.manifest)};
}

} // namespace vornel

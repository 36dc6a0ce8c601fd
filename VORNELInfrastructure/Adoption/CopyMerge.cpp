#include "CopyMerge.h"

#include "ComposedRevision.h"
#include "EditedCopies.h"

#include <VORNELInfrastructure/Disk/BestEffort.h>
#include <VORNELInfrastructure/History/SkillHistory.h>
#include <VORNELInfrastructure/Tree/SecureFileTree.h>
#include <VORNELInfrastructure/Tree/TreeDifferences.h>

#include <algorithm>

namespace vornel {

MergeResult CopyMerge::run(const QUuid &id, std::optional<qint64> expectedRevision,
                           const QList<MergeSettlement> &settlements)
{
    const SkillAuthoring authoring(m_workspace);
    const SkillRecord skill = authoring.recordAt(id, expectedRevision);
    const FileTreeSnapshot content = contentOf(m_workspace, skill);
    EditedCopies copies(m_workspace, skill, content);
    const std::optional<FileTreeSnapshot> claude = copies.of(TargetKind::claude);
    const std::optional<FileTreeSnapshot> codex = copies.of(TargetKind::codex);
    m_former = formerOf(skill.manifest, content);
    const FileTreeSnapshot ofClaude = sideOf(claude, content);
    const FileTreeSnapshot ofCodex = sideOf(codex, content);

    TreeMerge merge(m_workspace.files, content, ofClaude, ofCodex, m_unsettled);
    merge.run(settlements);
    if (!merge.conflicts().isEmpty())
        return {merge.conflicts(), std::nullopt};
    const std::string result = merge.tree().digest();
    if (result == content.digest)
        return {{}, authoring.synchronize(skill)};
    requireText(m_workspace, skill, merge.tree());
    keepMerged(skill.manifest, TargetKind::claude, claude, result);
    keepMerged(skill.manifest, TargetKind::codex, codex, result);
    return {{}, makeRevision(m_workspace, skill, merge.tree())};
}

/// What a copy brings into the merge: the skill as it would be with the changes of this copy alone. A copy
/// that doesn't stem from what the skill holds now, because somebody has edited that by hand for example,
/// must not undo what has changed there since.
FileTreeSnapshot CopyMerge::sideOf(const std::optional<FileTreeSnapshot> &copy,
                                   const FileTreeSnapshot &content)
{
    if (!copy)
        return content;
    const FileTreeSnapshot *origin = originOf(*copy, content);
    if (origin == nullptr)
        return *copy;
    TreeMerge conflicts(m_workspace.files, *origin, content, *copy);
    conflicts.run({});
    QList<MergeSettlement> settlements;
    for (const MergeConflict &conflict : conflicts.conflicts()) {
        settlements.append({conflict.relativePath, conflict.basis, TargetKind::codex}); // the copy
        m_unsettled.insert(conflict.relativePath.toStdString());
    }
    TreeMerge changes(m_workspace.files, *origin, content, *copy);
    changes.run(settlements);
    const Stage &stage = m_stages.emplace_back(m_workspace.files, m_workspace.config.staging());
    changes.tree().write(m_workspace.files, stage.path());
    return SecureFileTree::snapshot(m_workspace.files, stage.path(), TreeFilter::excludingManifest);
}

/// The kept content that a copy was made from: the one from which it differs least. Nothing where that is
/// what the skill holds now.
const FileTreeSnapshot *CopyMerge::originOf(const FileTreeSnapshot &copy,
                                            const FileTreeSnapshot &content) const
{
    const FileTreeSnapshot *origin = nullptr;
    qsizetype least = differences(content, copy).size();
    for (const FileTreeSnapshot &former : m_former) {
        const qsizetype count = differences(former, copy).size();
        if (count < least) {
            least = count;
            origin = &former;
        }
    }
    return origin;
}

/// What was installed before what the skill holds now: its revision, if it was edited by hand since, and
/// otherwise the revision before, of which a copy may be that could not be replaced or was left alone.
std::vector<FileTreeSnapshot> CopyMerge::formerOf(const SkillManifest &manifest,
                                                  const FileTreeSnapshot &content) const
{
    std::vector<FileTreeSnapshot> kept = keptOf(manifest.id, manifest.revision);
    const bool isKept = std::ranges::find(kept, content.digest, &FileTreeSnapshot::digest) != kept.end();
    return isKept ? keptOf(manifest.id, manifest.revision - 1) : kept;
}

std::vector<FileTreeSnapshot> CopyMerge::keptOf(const QUuid &id, qint64 revision) const
{
    std::vector<FileTreeSnapshot> kept;
    for (const KeptVersion &version : SkillHistory(m_workspace).ownVersions(id)) {
        if (version.revision != revision)
            continue;
        bestEffort([&] {
            kept.push_back(SecureFileTree::snapshot(m_workspace.files,
                                                    m_workspace.config.historyOf(id) / version.entry,
                                                    TreeFilter::excludingManifest));
        });
    }
    return kept;
}

/// An interrupted merge may leave the skill merged, and the copies as they were: they must not be taken then
/// for ones in which somebody has undone what the other copy has brought in.
void CopyMerge::keepMerged(const SkillManifest &manifest, TargetKind target,
                           const std::optional<FileTreeSnapshot> &copy, const std::string &result) const
{
    if (copy && copy->digest != result)
        SkillHistory(m_workspace).keepMerged(manifest, originOfCopy(target), result, copy->root);
}

} // namespace vornel

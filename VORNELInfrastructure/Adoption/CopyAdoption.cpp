#include "CopyAdoption.h"

#include "ComposedRevision.h"
#include "EditedCopies.h"
#include "TakenPaths.h"

#include <VORNELCore/Errors/VORNELWorkspaceError.h>
#include <VORNELCore/Records/ImportModels.h>
#include <VORNELInfrastructure/Disk/BestEffort.h>
#include <VORNELInfrastructure/History/SkillHistory.h>
#include <VORNELInfrastructure/Targets/TargetFolder.h>
#include <VORNELInfrastructure/Tree/ParallelMap.h>
#include <VORNELInfrastructure/Tree/SecureFileTree.h>
#include <VORNELInfrastructure/Workspace/Overview.h>

using namespace Qt::StringLiterals;

namespace vornel {

SkillDetail CopyAdoption::adopt(const QUuid &id, TargetKind copy, std::optional<qint64> expectedRevision,
                                const QStringList &paths) const
{
    const SkillRecord skill = m_authoring.recordAt(id, expectedRevision);
    const FileTreeSnapshot content = contentOf(m_workspace, skill);
    const FileTreeSnapshot adopted = copyOf(skill, copy);
    ComposedTree tree = treeWith(content, {adopted, u"dans la copie de "_s + assistantName(copy)}, paths);
    if (tree.digest() == content.digest)
        return makeDetail(m_workspace, skill);
    requireText(m_workspace, skill, tree);
    const auto leftAlone = paths.isEmpty() ? QSet<TargetKind>() : QSet{copy};
    return makeRevision(m_workspace, skill, std::move(tree), leftAlone);
}

SkillDetail CopyAdoption::adoptHandEdits(const QUuid &id, std::optional<qint64> expectedRevision) const
{
    const SkillRecord skill = m_authoring.recordAt(id, expectedRevision);
    if (!isEditedByHand(skill))
        return makeDetail(m_workspace, skill);
    m_store.readSkillMD(skill.folder, skill.manifest.slug); // for its errors
    const FileTreeSnapshot content = contentOf(m_workspace, skill);
    EditedCopies copies(m_workspace, skill, content);
    QSet<TargetKind> edited;
    for (const TargetKind target : allCases<TargetKind>()) {
        // One that can't be read is for the synchronisation to refuse.
        bestEffort([&] {
            if (copies.of(target))
                edited.insert(target);
        });
    }
    return m_authoring.reviseInPlace(skill, edited);
}

QSet<QUuid> CopyAdoption::editedByHand(const QSet<QUuid> &ids) const
{
    QList<SkillRecord> skills = activeManifests(m_workspace);
    skills.removeIf([&ids](const SkillRecord &skill) { return !ids.contains(skill.manifest.id); });
    const std::vector<bool> areEdited = parallelMap(skills, [this](const SkillRecord &skill) {
        bool isEdited = false;
        bestEffort([&] { isEdited = isEditedByHand(skill); });
        return isEdited;
    });
    QSet<QUuid> edited;
    for (qsizetype index = 0; index < skills.size(); ++index) {
        if (areEdited.at(static_cast<std::size_t>(index)))
            edited.insert(skills.at(index).manifest.id);
    }
    return edited;
}

bool CopyAdoption::isEditedByHand(const SkillRecord &skill) const
{
    const FileTreeSnapshot all = SecureFileTree::snapshot(m_workspace.files, skill.folder, TreeFilter::all);
    return !SkillHistory(m_workspace).holdsRevision(skill.manifest, all);
}

FileTreeSnapshot CopyAdoption::copyOf(const SkillRecord &skill, TargetKind target) const
{
    const auto copy = TargetFolder(m_workspace, target).snapshot(skill.manifest.slug.toStdString());
    if (!copy)
        throw VORNELWorkspaceError::integrityFailure(
            u"%1 n’a pas de copie de cette compétence."_s.arg(assistantName(target)));
    return *copy;
}

} // namespace vornel

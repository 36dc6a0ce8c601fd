#include "PropertyEdit.h"

#include "PropertyRules.h"
#include "SchemaVersion.h"
#include "SkillFolderStore.h"
#include "SkillRename.h"
#include "TextProperties.h"

#include <VORNELCore/Errors/VORNELWorkspaceError.h>
#include <VORNELInfrastructure/Disk/BestEffort.h>
#include <VORNELInfrastructure/History/SkillHistory.h>
#include <VORNELInfrastructure/Tree/SecureFileTree.h>
#include <VORNELInfrastructure/Workspace/Overview.h>

#include <numeric>

using namespace Qt::StringLiterals;

namespace vornel {

std::vector<PropertyEdit::Planned> PropertyEdit::plan(const QList<QUuid> &ids, const PropertyChange &change,
                                                      std::optional<qint64> expectedRevision) const
{
    if (change.slug && ids.size() > 1)
        throw VORNELWorkspaceError::integrityFailure(
            u"Un identifiant ne peut être donné qu’à une seule compétence."_s);
    const QList<SkillRecord> active = activeManifests(m_workspace);
    std::vector<Planned> plan;
    for (const QUuid &id : ids) {
        const SkillRecord &skill = findRecord(active, id);
        if (expectedRevision && skill.manifest.revision != *expectedRevision)
            throw VORNELWorkspaceError::revisionConflict(*expectedRevision, skill.manifest.revision);
        plan.push_back({skill, changedProperties(m_workspace, SkillProperties::of(skill.manifest),
                                                 withTextProperties(m_workspace, skill, change))});
        if (plan.back().isChange())
            check(skill.manifest, plan.back().wanted);
    }
    return plan;
}

QList<SkillProperties> PropertyEdit::review(const QList<QUuid> &ids, const PropertyChange &change) const
{
    QList<SkillProperties> wanted;
    for (const Planned &planned : plan(ids, change, {}))
        wanted.append(planned.wanted);
    return wanted;
}

QList<SkillDetail> PropertyEdit::run(const QList<QUuid> &ids, const PropertyChange &change,
                                     std::optional<qint64> expectedRevision) const
{
    QList<SkillDetail> details;
    for (Planned &planned : plan(ids, change, expectedRevision)) {
        if (planned.isChange()) {
            const FileTreeSnapshot tree = revise(planned.skill, planned.wanted);
            details.append(makeDetail(m_workspace, planned.skill, tree));
        } else {
            details.append(makeDetail(m_workspace, planned.skill));
        }
    }
    return details;
}

qint64 PropertyEdit::sizeOf(const QUuid &id) const
{
    const SkillRecord skill = activeRecord(m_workspace, id);
    const FileTreeSnapshot tree = SecureFileTree::snapshot(
        m_workspace.files, skill.folder, TreeFilter::excludingManifest, &m_workspace.digests);
    const auto add = [](qint64 sum, const FileTreeSnapshot::Entry &entry) { return sum + entry.size; };
    return std::accumulate(tree.entries.begin(), tree.entries.end(), qint64(0), add);
}

void PropertyEdit::check(const SkillManifest &skill, const SkillProperties &wanted) const
{
    refuseNewer(skill);
    if (wanted.slug != skill.slug)
        SkillRename(m_workspace).check(skill, wanted.slug);
}

FileTreeSnapshot PropertyEdit::revise(SkillRecord &skill, const SkillProperties &wanted) const
{
    const SkillHistory history(m_workspace);
    const SkillRename rename(m_workspace);
    history.keepRevision(skill.manifest, skill.folder);
    const SkillProperties former = SkillProperties::of(skill.manifest);
    const bool isRenamed = wanted.slug != former.slug;
    wanted.writeTo(skill.manifest);
    advanceRevision(skill.manifest);
    skill.folder = m_workspace.config.canonical(skill.manifest.slug);
    if (isRenamed)
        rename.renameFolder(skill.manifest, former.slug);
    else
        SkillFolderStore(m_workspace).writeManifest(skill.manifest, skill.folder, Durability::Now);
    m_workspace.changes[skill.manifest.id] = {.revision = skill.manifest.revision, .properties = former};
    std::exception_ptr failure; // of a copy, which must not keep the revision out of the history
    if (isRenamed)
        failure = failureOf([&] { rename.renameCopies(skill.manifest, former.slug); });
    FileTreeSnapshot tree = history.add(skill.manifest, skill.folder);
    if (failure)
        std::rethrow_exception(failure);
    return tree;
}

} // namespace vornel

#include "UndoRun.h"

#include <VORNELCore/Errors/VORNELWorkspaceError.h>
#include <VORNELCore/Records/ImportModels.h>
#include <VORNELCore/Records/SerializedForms.h>
#include <VORNELInfrastructure/Adoption/ComposedRevision.h>
#include <VORNELInfrastructure/History/SkillHistory.h>
#include <VORNELInfrastructure/Skills/PropertyEdit.h>
#include <VORNELInfrastructure/Skills/PropertyRules.h>
#include <VORNELInfrastructure/Skills/SkillTrash.h>
#include <VORNELInfrastructure/Targets/TargetFolder.h>
#include <VORNELInfrastructure/Targets/TargetSynchronizer.h>
#include <VORNELInfrastructure/Tree/SecureFileTree.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vornel {

namespace fs = std::filesystem;

namespace {

[[noreturn]] void refuse(const QString &reason)
{
    throw VORNELWorkspaceError::integrityFailure(reason +
                                                 u"\u00A0: il n’est plus possible de revenir en arrière."_s);
}

[[noreturn]] void refuseChanged(const SkillManifest &manifest)
{
    refuse(u"«\u00A0%1\u00A0» a changé depuis"_s.arg(manifest.displayName));
}

/// The skill, if it is still at the revision that the change has left.
const SkillRecord &unchanged(const QList<SkillRecord> &records, const QUuid &id, const SkillChange &change)
{
    const auto found =
        std::ranges::find(records, id, [](const SkillRecord &record) { return record.manifest.id; });
    if (found == records.end())
        refuse(u"Une compétence a été déplacée ou supprimée depuis"_s);
    if (change.revision != 0 && found->manifest.revision != change.revision)
        refuseChanged(found->manifest);
    return *found;
}

} // namespace

UndoRun::UndoRun(const Workspace &workspace, UndoRecording &changes)
    : m_workspace(workspace),
      m_changes(changes),
      m_active(activeManifests(workspace)),
      m_trashed(trashedManifests(workspace))
{}

void UndoRun::run()
{
    checkAll();
    try {
        bringBackAll();
    } catch (...) {
        removeDone(m_changes, m_workspace.changes);
        throw;
    }
    m_changes.clear();
}

/// What can't be read now may be read later; what has moved on won't come back.
void UndoRun::checkAll()
try {
    for (const auto &[id, change] : m_changes)
        check(id, change);
} catch (const VORNELWorkspaceError &) {
    m_changes.clear();
    throw;
}

void UndoRun::bringBackAll() const
{
    for (const Return &former : m_returns)
        bringBack(former);
    for (const auto &[skill, properties] : m_properties) {
        SkillRecord changing = skill;
        PropertyEdit(m_workspace).revise(changing, properties);
    }
    for (const QUuid &id : inTextOrder(m_fromTrash))
        SkillTrash(m_workspace).restore(id, m_changes.at(id).takenOut);
    SkillTrash(m_workspace).moveToTrash(m_toTrash);
}

void UndoRun::check(const QUuid &id, const SkillChange &change)
{
    if (change.move == SkillChange::Move::toTrash) {
        checkTrashed(id, change);
        m_fromTrash.insert(id);
        return;
    }
    const SkillRecord &skill = unchanged(m_active, id, change);
    if (change.move == SkillChange::Move::fromTrash) {
        m_toTrash.insert(id);
    } else if (change.properties) {
        PropertyEdit(m_workspace).check(skill.manifest, *change.properties);
        m_properties.emplace_back(skill, validProperties(m_workspace, *change.properties));
    } else {
        m_returns.push_back(returnOf(skill, change));
    }
}

/// The places must be free that the skill and its copies go back to.
void UndoRun::checkTrashed(const QUuid &id, const SkillChange &change) const
{
    const SkillManifest &manifest = unchanged(m_trashed, id, change).manifest;
    ensureUnique(manifest.slug, m_active);
    for (const auto &[target, place] : change.takenOut) {
        const fs::path copy = m_workspace.config.target(target) / pathFromText(manifest.slug);
        if (m_workspace.files.kindAt(copy) || !m_workspace.files.kindAt(place))
            refuse(u"La copie de %1 n’est plus là où elle était"_s.arg(assistantName(target)));
    }
}

/// A copy that held the former content gets it by the revision that brings that back; others held something
/// else.
UndoRun::Return UndoRun::returnOf(const SkillRecord &skill, const SkillChange &change) const
{
    const auto targets = allCases<TargetKind>();
    Return former{.skill = skill, .leftAlone = {targets.begin(), targets.end()}};
    if (change.hasNewContent()) {
        if (contentOf(m_workspace, skill).digest != change.installedContent)
            refuseChanged(skill.manifest);
        former.content = kept(skill, change.formerContent);
    }
    for (const auto &[target, copy] : change.copies) {
        if (!copy.former && !former.content)
            continue;
        const auto present = TargetFolder(m_workspace, target).snapshot(skill.manifest.slug.toStdString());
        if (!present || present->digest != copy.installed)
            refuse(u"La copie de %1 a changé depuis"_s.arg(assistantName(target)));
        if (former.content && copy.former.value_or(change.formerContent) == change.formerContent)
            former.leftAlone.remove(target);
        else
            former.copies.emplace(target, kept(skill, *copy.former));
    }
    return former;
}

FileTreeSnapshot UndoRun::kept(const SkillRecord &skill, const std::string &digest) const
{
    const QUuid &id = skill.manifest.id;
    const SkillHistory history(m_workspace);
    for (const KeptVersion &version : history.versions(id)) {
        if (history.contentOf(id, version.entry) == digest)
            return SecureFileTree::snapshot(m_workspace.files,
                                            m_workspace.config.historyOf(id) / version.entry,
                                            TreeFilter::excludingManifest);
    }
    refuse(
        u"L’historique de «\u00A0%1\u00A0» n’a plus ce qui a été remplacé"_s.arg(skill.manifest.displayName));
}

/// The copies come first: as long as the skill is at its revision, what is left can be tried again.
void UndoRun::bringBack(const Return &former) const
{
    const TargetSynchronizer targets(m_workspace);
    for (const auto &[target, content] : former.copies)
        targets.putBack(former.skill.manifest, target, content);
    if (!former.content)
        return;
    ComposedTree tree;
    tree.takeAll(*former.content);
    makeRevision(m_workspace, former.skill, std::move(tree), former.leftAlone);
}

} // namespace vornel

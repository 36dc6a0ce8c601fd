#include "CopyAdoption.h"

#include "TreeMerge.h"

#include <VORNELCore/Errors/VORNELWorkspaceError.h>
#include <VORNELCore/Errors/WorkspaceValidation.h>
#include <VORNELCore/Records/ImportModels.h>
#include <VORNELCore/Records/SerializedForms.h>
#include <VORNELInfrastructure/Disk/BestEffort.h>
#include <VORNELInfrastructure/Skills/SkillFiles.h>
#include <VORNELInfrastructure/Skills/SkillHistory.h>
#include <VORNELInfrastructure/Targets/CopyDrift.h>
#include <VORNELInfrastructure/Targets/TargetFolder.h>
#include <VORNELInfrastructure/Tree/ParallelMap.h>
#include <VORNELInfrastructure/Tree/SecureFileTree.h>
#include <VORNELInfrastructure/Workspace/Overview.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vornel {

namespace {

using Entry = FileTreeSnapshot::Entry;

bool holds(const FileTreeSnapshot &tree, const std::string &path)
{
    return std::ranges::any_of(tree.entries,
                               [&](const Entry &entry) { return isAtOrBelow(entry.relativePath, path); });
}

/// A path as the user gives it: that of a folder may end in "/".
std::string treePath(QString typed)
{
    while (typed.endsWith(u'/'))
        typed.chop(1);
    WorkspaceValidation::validateRelativePath(typed.toUtf8());
    return typed.toStdString();
}

} // namespace

SkillDetail CopyAdoption::adopt(const QUuid &id, TargetKind copy, std::optional<qint64> expectedRevision,
                                const QStringList &paths) const
{
    const SkillRecord skill = m_authoring.recordAt(id, expectedRevision);
    const FileTreeSnapshot content = contentOf(skill);
    const FileTreeSnapshot adopted = copyOf(skill, copy);
    ComposedTree tree;
    tree.takeAll(paths.isEmpty() ? adopted : content);
    for (const QString &typed : paths) {
        const std::string path = treePath(typed);
        if (!holds(content, path) && !holds(adopted, path))
            throw VORNELWorkspaceError::integrityFailure(
                u"« %1 » n’est ni dans la bibliothèque ni dans la copie de %2."_s.arg(typed,
                                                                                      assistantName(copy)));
        tree.replace(adopted, path);
    }
    if (tree.digest() == content.digest)
        return makeDetail(m_workspace, skill);
    requireText(skill, tree);
    return revise(skill, std::move(tree), paths.isEmpty() ? std::nullopt : std::optional(copy));
}

MergeResult CopyAdoption::merge(const QUuid &id, std::optional<qint64> expectedRevision,
                                const QList<MergeSettlement> &settlements) const
{
    const SkillRecord skill = m_authoring.recordAt(id, expectedRevision);
    const FileTreeSnapshot content = contentOf(skill);
    CopyDrift drift(m_workspace, skill.manifest);
    const FileTreeSnapshot claude = editedCopy(skill, TargetKind::claude, content, drift);
    const FileTreeSnapshot codex = editedCopy(skill, TargetKind::codex, content, drift);
    TreeMerge merge(m_workspace.files, content, claude, codex);
    merge.run(settlements);
    if (!merge.conflicts().isEmpty())
        return {merge.conflicts(), std::nullopt};
    const std::string result = merge.tree().digest();
    if (result == content.digest)
        return {{}, m_authoring.synchronize(skill)};
    requireText(skill, merge.tree());
    keepMerged(skill, TargetKind::claude, claude, result);
    keepMerged(skill, TargetKind::codex, codex, result);
    return {{}, revise(skill, merge.tree(), std::nullopt)};
}

/// An interrupted merge may leave the skill merged, and the copies as they were: they must not be taken then
/// for ones in which somebody has undone what the other copy has brought in.
void CopyAdoption::keepMerged(const SkillRecord &skill, TargetKind target, const FileTreeSnapshot &copy,
                              const std::string &result) const
{
    if (copy.root != skill.folder && copy.digest != result)
        SkillHistory(m_workspace).keepMerged(skill.manifest.id, rawValue(target), result, copy.root);
}

SkillDetail CopyAdoption::adoptHandEdits(const QUuid &id, std::optional<qint64> expectedRevision) const
{
    const SkillRecord skill = m_authoring.recordAt(id, expectedRevision);
    if (!isEditedByHand(skill))
        return makeDetail(m_workspace, skill);
    m_store.readSkillMD(skill.folder, skill.manifest.slug); // for its errors
    return m_authoring.reviseInPlace(skill);
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

FileTreeSnapshot CopyAdoption::contentOf(const SkillRecord &skill) const
{
    return SecureFileTree::snapshot(m_workspace.files, skill.folder, TreeFilter::excludingManifest);
}

FileTreeSnapshot CopyAdoption::copyOf(const SkillRecord &skill, TargetKind target) const
{
    const auto copy = TargetFolder(m_workspace, target).snapshot(skill.manifest.slug.toStdString());
    if (!copy)
        throw VORNELWorkspaceError::integrityFailure(
            u"%1 n’a pas de copie de cette compétence."_s.arg(assistantName(target)));
    return *copy;
}

/// A copy that is missing or outdated, or is merged already, counts as one that holds what the library does.
FileTreeSnapshot CopyAdoption::editedCopy(const SkillRecord &skill, TargetKind target,
                                          const FileTreeSnapshot &content, CopyDrift &drift) const
{
    auto copy = TargetFolder(m_workspace, target).snapshot(skill.manifest.slug.toStdString());
    const bool isEdited = copy && copy->digest != content.digest &&
                          drift.of(copy->digest) != Drift::outdated &&
                          !SkillHistory(m_workspace)
                               .wasMerged(skill.manifest.id, rawValue(target), content.digest, copy->digest);
    return isEdited ? *std::move(copy) : content;
}

/// The manifests further down in the skill's own folder belong to no copy, and stay.
SkillDetail CopyAdoption::revise(const SkillRecord &skill, ComposedTree tree,
                                 std::optional<TargetKind> leftAlone) const
{
    const FileTreeSnapshot all = SecureFileTree::snapshot(m_workspace.files, skill.folder, TreeFilter::all);
    for (const Entry &entry : all.entries) {
        if (!includes(TreeFilter::excludingManifest, entry.relativePath))
            tree.take(all, entry);
    }
    const auto make = [&](const std::filesystem::path &stage) { tree.write(m_workspace.files, stage); };
    return m_authoring.revise(skill, make, leftAlone);
}

/// A revision that the editor could not open would be of no use.
void CopyAdoption::requireText(const SkillRecord &skill, const ComposedTree &tree) const
{
    const std::optional<QByteArray> bytes = tree.bytesOf(m_workspace.files, SkillFiles::text);
    const std::optional<QString> text = textFromUtf8(bytes.value_or(QByteArray()));
    if (!text)
        throw std::filesystem::filesystem_error("decode", skill.folder / SkillFiles::text,
                                                std::make_error_code(std::errc::illegal_byte_sequence));
    if (text->trimmed().isEmpty())
        throw VORNELWorkspaceError::missingSkillFile(skill.manifest.slug);
}

} // namespace vornel

#include "SkillAuthoring.h"

#include "PropertyRules.h"
#include "SchemaVersion.h"
#include "SkillText.h"

#include <VORNELCore/Errors/VORNELWorkspaceError.h>
#include <VORNELCore/Errors/WorkspaceValidation.h>
#include <VORNELCore/Records/SerializedForms.h>
#include <VORNELCore/Records/SkillFiles.h>
#include <VORNELInfrastructure/Disk/BestEffort.h>
#include <VORNELInfrastructure/Disk/FileOperations.h>
#include <VORNELInfrastructure/Tree/ComposedTree.h>
#include <VORNELInfrastructure/Tree/ParallelMap.h>
#include <VORNELInfrastructure/Workspace/Overview.h>

using namespace Qt::StringLiterals;

namespace vornel {

namespace fs = std::filesystem;

SkillManifest SkillAuthoring::newManifest(const CreateSkillRequest &request) const
{
    WorkspaceValidation::validateSlug(request.slug);
    ensureUnique(request.slug, activeManifests(m_workspace));
    ensureUnique(request.slug, trashedManifests(m_workspace));
    const QDateTime now = currentInstant();
    SkillManifest manifest;
    manifest.id = QUuid::createUuid();
    manifest.createdAt = manifest.updatedAt = now;
    validProperties(m_workspace, {.slug = request.slug,
                                  .displayName = request.displayName,
                                  .summary = request.summary,
                                  .category = request.category,
                                  .tags = request.tags,
                                  .maturity = request.maturity})
        .writeTo(manifest);
    return manifest;
}

SkillManifest SkillAuthoring::manifestFor(const fs::path &folder, const QString &slug) const
{
    const SkillText::Metadata metadata =
        SkillText::frontmatterMetadata(m_store.readSkillMD(folder, slug), slug);
    return newManifest({.slug = slug,
                        .displayName = metadata.name.left(SkillText::longestMetadata),
                        .summary = metadata.summary.left(SkillText::longestMetadata),
                        .category = SkillCategory::otherID,
                        .tags = {},
                        .maturity = Maturity::active,
                        .skillMD = {}});
}

SkillDetail SkillAuthoring::create(const CreateSkillRequest &request) const
{
    const SkillManifest manifest = newManifest(request);
    return add(manifest, [&](const fs::path &stage) {
        createFolders(m_workspace.files, stage, Durability::Later);
        m_store.writeSkillMD(request.skillMD.value_or(SkillText::defaultSkillMD(manifest)), stage);
    });
}

SkillDetail SkillAuthoring::add(const SkillManifest &manifest,
                                const std::function<void(const fs::path &)> &make) const
{
    const SkillRecord skill{manifest, m_workspace.config.canonical(manifest.slug)};
    StagedFolder folder{m_store.makeStage(), {.path = skill.folder}};
    make(folder.stage.path());
    m_store.writeManifest(manifest, folder.stage.path(), Durability::Later);
    commit(m_workspace.files, folder);

    const FileTreeSnapshot tree = SkillHistory(m_workspace).add(skill.manifest, skill.folder);
    return install(skill, tree, TargetSynchronizer(m_workspace).find(skill.manifest));
}

SkillDetail SkillAuthoring::install(const SkillRecord &skill, const FileTreeSnapshot &tree,
                                    TargetCopies copies) const
{
    TargetSynchronizer(m_workspace).synchronize(skill.manifest, tree, std::move(copies));
    return makeDetail(m_workspace, skill, tree);
}

SkillDetail SkillAuthoring::load(const QUuid &id) const
{
    return makeDetail(m_workspace, activeRecord(m_workspace, id));
}

SkillRecord SkillAuthoring::recordAt(const QUuid &id, std::optional<qint64> expectedRevision) const
{
    SkillRecord skill = activeRecord(m_workspace, id);
    if (expectedRevision && skill.manifest.revision != *expectedRevision)
        throw VORNELWorkspaceError::revisionConflict(*expectedRevision, skill.manifest.revision);
    return skill;
}

SkillDetail SkillAuthoring::save(const QUuid &id, qint64 expectedRevision, const QString &skillMD) const
{
    const SkillRecord skill = recordAt(id, expectedRevision);
    if (skillMD.trimmed().isEmpty())
        throw VORNELWorkspaceError::missingSkillFile(skill.manifest.slug);
    return revise(skill, [&](const FileTreeSnapshot &former) {
        ComposedTree tree;
        tree.takeAll(former);
        tree.put(SkillFiles::text, skillMD.toUtf8());
        return tree;
    });
}

SkillDetail SkillAuthoring::revise(SkillRecord skill,
                                   const std::function<ComposedTree(const FileTreeSnapshot &former)> &compose,
                                   const QSet<TargetKind> &leftAlone) const
{
    refuseNewer(skill.manifest);
    const SkillHistory history(m_workspace);
    const FormerFolder former = history.keepRevision(skill.manifest, skill.folder);
    const SkillRecord before = skill;
    advanceRevision(skill.manifest);

    ComposedTree composed = compose(former.tree);
    composed.put(SkillFiles::manifest, SkillFolderStore::bytesOf(skill.manifest));
    StagedFolder folder{m_store.makeStage(), placeOf(before, former)};
    const fs::path &stage = folder.stage.path();
    const FileTreeSnapshot staged = composed.snapshotAt(stage);
    const fs::path takenOver = former.keptAs.empty() ? former.tree.root : fs::path();
    Unflushed made;
    std::optional<StagedEntry> entry;
    together([&] { made = composed.write(m_workspace.files, stage, takenOver); },
             [&] { entry.emplace(history.begin(skill.manifest, staged)); });
    Commit commit(m_workspace.files);
    together([&] { commit.flush(made); }, [&] { entry->complete(); });
    const fs::path left = commit.finish(folder);

    SkillChange &change = m_workspace.changes[skill.manifest.id];
    change.revision = skill.manifest.revision;
    change.formerContent = former.tree.contentDigest();
    change.installedContent = staged.contentDigest();

    FileTreeSnapshot tree;
    TargetCopies copies;
    together(
        [&] {
            settle(left, before.manifest, former.tree);
            tree = folderTree(m_workspace, skill); // somebody may have written there since
        },
        [&] {
            entry->put();
            copies = TargetSynchronizer(m_workspace).find(skill.manifest, leftAlone);
        });
    return install(skill, tree, std::move(copies));
}

SkillDetail SkillAuthoring::reviseInPlace(SkillRecord skill, const QSet<TargetKind> &leftAlone) const
{
    advanceRevision(skill.manifest);
    m_store.writeManifest(skill.manifest, skill.folder, Durability::Now);
    m_workspace.changes[skill.manifest.id].revision = skill.manifest.revision;
    const FileTreeSnapshot tree = SkillHistory(m_workspace).add(skill.manifest, skill.folder);
    return install(skill, tree, TargetSynchronizer(m_workspace).find(skill.manifest, leftAlone));
}

SkillDetail SkillAuthoring::synchronize(const QUuid &id) const
{
    return synchronize(activeRecord(m_workspace, id));
}

SkillDetail SkillAuthoring::synchronize(const SkillRecord &skill) const
{
    keepRevision(skill);
    TargetSynchronizer(m_workspace).synchronize(skill);
    return makeDetail(m_workspace, skill);
}

SkillDetail SkillAuthoring::setAside(const QUuid &id, TargetKind target) const
{
    const SkillRecord skill = activeRecord(m_workspace, id);
    keepRevision(skill);
    TargetSynchronizer(m_workspace).setAside(skill, target);
    return makeDetail(m_workspace, skill);
}

CommitPlace SkillAuthoring::placeOf(const SkillRecord &skill, const FormerFolder &former) const
{
    const QString name = uuidText(QUuid::createUuid()) + u"-canonical-"_s + skill.manifest.slug;
    const fs::path backup = m_workspace.config.recovery() / pathFromText(name);
    return {.path = skill.folder, .backup = backup, .keptAs = former.keptAs};
}

void SkillAuthoring::settle(const fs::path &left, const SkillManifest &manifest,
                            const FileTreeSnapshot &asRead) const
{
    if (left.empty())
        return;
    bestEffort([&] {
        if (!SkillHistory(m_workspace)
                 .keepIfChanged(manifest, VersionOrigin::library, left, asRead, TreeFilter::all))
            m_store.discard(left);
    });
}

/// Keeps what was edited by hand in the history before it is installed. Otherwise the copies would later seem
/// to have been edited by an assistant.
void SkillAuthoring::keepRevision(const SkillRecord &skill) const
{
    bestEffort([&] { SkillHistory(m_workspace).keepRevision(skill.manifest, skill.folder); });
}

} // namespace vornel

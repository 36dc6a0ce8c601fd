#include "LocalWorkspaceOperation.h"
#include "Overview.h"
#include "WorkspaceBootstrap.h"

#include <VORNELInfrastructure/Adoption/CopyAdoption.h>
#include <VORNELInfrastructure/Adoption/CopyMerge.h>
#include <VORNELInfrastructure/Categories/CategoryEditing.h>
#include <VORNELInfrastructure/Import/NewSkills.h>
#include <VORNELInfrastructure/Skills/PropertyEdit.h>
#include <VORNELInfrastructure/Skills/SkillAuthoring.h>
#include <VORNELInfrastructure/Skills/SkillTrash.h>
#include <VORNELInfrastructure/Targets/CopyInspector.h>
#include <VORNELInfrastructure/Targets/SynchronizationPass.h>
#include <VORNELInfrastructure/Targets/TargetComparer.h>
#include <VORNELInfrastructure/Targets/TargetOccupancy.h>

namespace vornel {

namespace fs = std::filesystem;

LocalWorkspaceService::LocalWorkspaceService(std::shared_ptr<FileSystem> manager, FailureScope failureScope,
                                             std::shared_ptr<WorkspaceWatch> watch)
    : m_manager(std::move(manager)), m_failureScope(failureScope), m_watch(std::move(watch))
{}

Workspace LocalWorkspaceService::workspaceOf(const Configuration &config, UndoRecording &changes)
{
    m_digests.beginOperation();
    m_entries.beginOperation();
    return {*m_manager, config,    m_failedSyncTargets, m_foundCopies,
            changes,    m_digests, m_entries,           m_failureScope};
}

WorkspaceOverview LocalWorkspaceService::overview(const Workspace &workspace) const
{
    if (m_watch)
        m_watch->beginOverview(workspace.files, workspace.config);
    return makeOverview(workspace);
}

QFuture<WorkspaceOverview> LocalWorkspaceService::bootstrap(fs::path workspaceURL, fs::path claudeRoot,
                                                            fs::path codexRoot)
{
    return m_executor.submit<WorkspaceOverview>([=, this](QPromise<WorkspaceOverview> &) {
        const Configuration config = Configuration::forRoots(*m_manager, workspaceURL, claudeRoot, codexRoot);
        UndoRecording changes;
        const Workspace workspace = workspaceOf(config, changes);
        m_manager->confine(config.roots());
        createLayout(workspace);
        const auto locked = [&](LockMode mode) { return m_manager->lock(config.bookkeeping(), mode); };
        auto lock = std::make_optional(locked(LockMode::Shared));
        if (!isReady(workspace)) { // only then must a start wait for readers
            lock.reset();
            prepareWorkspace(workspace, locked(LockMode::Exclusive));
            lock.emplace(locked(LockMode::Shared));
        }
        readMetadata(workspace); // for its errors
        m_configuration = config;
        m_undo.forget();
        return overview(workspace);
    });
}

QFuture<ImportPlan> LocalWorkspaceService::scanImports()
{
    return perform(LockMode::Shared, [this](const Workspace &workspace) { return m_import.scan(workspace); });
}

QFuture<ImportPlan> LocalWorkspaceService::resolveCollision(QUuid id, CollisionChoice choice)
{
    return perform(LockMode::Shared,
                   [this, id, choice](const Workspace &) { return m_import.resolve(id, choice); });
}

QFuture<ImportPlan> LocalWorkspaceService::resolveCollisions(CollisionChoice choice)
{
    return perform(LockMode::Shared,
                   [this, choice](const Workspace &) { return m_import.resolveAll(choice); });
}

QFuture<ImportPlan> LocalWorkspaceService::excludeFromImport(QString slug)
{
    return perform(LockMode::Shared, [this, slug](const Workspace &) { return m_import.exclude(slug); });
}

QFuture<WorkspaceOverview> LocalWorkspaceService::commitImport(QUuid planID)
{
    return m_executor.submit<WorkspaceOverview>([this, planID](QPromise<WorkspaceOverview> &promise) {
        const auto report = [&promise](int done, int total) {
            if (done == 0)
                promise.setProgressRange(0, total);
            promise.setProgressValue(done);
        };
        return runLocked(LockMode::Exclusive, [&](const Workspace &workspace) {
            m_import.commit(workspace, planID, report);
            return overview(workspace);
        });
    });
}

QFuture<WorkspaceOverview> LocalWorkspaceService::reload()
{
    return perform(LockMode::Shared, [this](const Workspace &workspace) { return overview(workspace); });
}

QFuture<SkillManifest> LocalWorkspaceService::reviewCreation(CreateSkillRequest request)
{
    return perform(LockMode::Shared, [=](const Workspace &workspace) {
        return SkillAuthoring(workspace).newManifest(request);
    });
}

QFuture<SkillDetail> LocalWorkspaceService::createSkill(CreateSkillRequest request)
{
    return perform(LockMode::Exclusive,
                   [=](const Workspace &workspace) { return SkillAuthoring(workspace).create(request); });
}

QFuture<SkillDetail> LocalWorkspaceService::loadSkill(QUuid id)
{
    return perform(LockMode::Shared,
                   [=](const Workspace &workspace) { return SkillAuthoring(workspace).load(id); });
}

QFuture<SkillDetail> LocalWorkspaceService::saveSkill(QUuid id, qint64 expectedRevision, QString skillMD)
{
    return performUndoable(UndoableAction::save, [=](const Workspace &workspace) {
        return SkillAuthoring(workspace).save(id, expectedRevision, skillMD);
    });
}

QFuture<WorkspaceOverview> LocalWorkspaceService::createCategory(QString name, QString colorHex)
{
    return change([=](const Workspace &workspace) { CategoryEditing(workspace).create(name, colorHex); });
}

QFuture<WorkspaceOverview> LocalWorkspaceService::updateCategory(QString id, QString name, QString colorHex)
{
    return change([=](const Workspace &workspace) { CategoryEditing(workspace).update(id, name, colorHex); });
}

QFuture<WorkspaceOverview> LocalWorkspaceService::deleteCategory(QString id)
{
    return change([=](const Workspace &workspace) { CategoryEditing(workspace).remove(id); });
}

QFuture<WorkspaceOverview> LocalWorkspaceService::assignSkills(QSet<QUuid> ids, QString to)
{
    return performUndoable(UndoableAction::assignment, [=, this](const Workspace &workspace) {
        CategoryEditing(workspace).assign(ids, to);
        return overview(workspace);
    });
}

QFuture<QList<SkillDetail>> LocalWorkspaceService::setProperties(QList<QUuid> ids, PropertyChange change,
                                                                 std::optional<qint64> expectedRevision)
{
    return performUndoable(UndoableAction::properties, [=](const Workspace &workspace) {
        return PropertyEdit(workspace).run(ids, change, expectedRevision);
    });
}

QFuture<QList<SkillProperties>> LocalWorkspaceService::reviewProperties(QList<QUuid> ids,
                                                                        PropertyChange change)
{
    return perform(LockMode::Shared,
                   [=](const Workspace &workspace) { return PropertyEdit(workspace).review(ids, change); });
}

QFuture<qint64> LocalWorkspaceService::sizeOf(QUuid id)
{
    return perform(LockMode::Shared,
                   [=](const Workspace &workspace) { return PropertyEdit(workspace).sizeOf(id); });
}

QFuture<SkillDetail> LocalWorkspaceService::synchronize(QUuid id)
{
    return performUndoable(UndoableAction::synchronisation, [=](const Workspace &workspace) {
        return SkillAuthoring(workspace).synchronize(id);
    });
}

QFuture<QList<SyncOutcome>> LocalWorkspaceService::synchronizeSkills(QList<QUuid> ids, std::stop_token stop)
{
    using Outcomes = QList<SyncOutcome>;
    const auto total = static_cast<int>(ids.size());
    const auto pass = std::make_shared<SynchronizationPass>(std::move(ids), std::move(stop));
    const auto changes = std::make_shared<UndoRecording>();
    return m_executor.submitInTurns<Outcomes>([this, total, pass, changes](QPromise<Outcomes> &promise) {
        if (pass->outcomes().isEmpty())
            promise.setProgressRange(0, total);
        try {
            const auto takeTurn = [&](const Workspace &workspace) {
                pass->takeTurn(workspace, [&promise](int done) { promise.setProgressValue(done); });
            };
            runLocked(LockMode::Exclusive, takeTurn, *changes);
        } catch (...) {
            if (pass->outcomes().isEmpty())
                throw;
            pass->giveUp(std::current_exception());
        }
        if (!pass->isDone())
            return std::optional<Outcomes>();
        m_undo.remember(std::move(*changes), {.action = UndoableAction::synchronisation});
        return std::optional(pass->outcomes());
    });
}

QFuture<WorkspaceOverview> LocalWorkspaceService::moveToTrash(QUuid id)
{
    return moveToTrash(QSet<QUuid>{id});
}

QFuture<WorkspaceOverview> LocalWorkspaceService::moveToTrash(QSet<QUuid> ids)
{
    return performUndoable(UndoableAction::trash, [=, this](const Workspace &workspace) {
        SkillTrash(workspace).moveToTrash(ids);
        return overview(workspace);
    });
}

QFuture<WorkspaceOverview> LocalWorkspaceService::restore(QUuid id)
{
    return change([=](const Workspace &workspace) { SkillTrash(workspace).restore(id); });
}

QFuture<WorkspaceOverview> LocalWorkspaceService::deletePermanently(QUuid id)
{
    return change([=](const Workspace &workspace) { SkillTrash(workspace).deletePermanently(id); });
}

QFuture<WorkspaceOverview> LocalWorkspaceService::emptyTrash()
{
    return change([](const Workspace &workspace) { SkillTrash(workspace).empty(); });
}

QFuture<QList<CopyInspection>> LocalWorkspaceService::inspectCopies(QUuid id)
{
    return perform(LockMode::Shared,
                   [=](const Workspace &workspace) { return CopyInspector(workspace).inspect(id); });
}

QFuture<QHash<QUuid, QList<CopyInspection>>> LocalWorkspaceService::wrongCopies()
{
    return perform(LockMode::Shared,
                   [](const Workspace &workspace) { return CopyInspector(workspace).wrongCopies(); });
}

QFuture<SkillDetail> LocalWorkspaceService::setAside(QUuid id, TargetKind target)
{
    return perform(LockMode::Exclusive, [=](const Workspace &workspace) {
        return SkillAuthoring(workspace).setAside(id, target);
    });
}

QFuture<SkillDetail> LocalWorkspaceService::adopt(QUuid id, TargetKind copy,
                                                  std::optional<qint64> expectedRevision, QStringList paths)
{
    return performUndoable(UndoableAction::adoption, [=](const Workspace &workspace) {
        return CopyAdoption(workspace).adopt(id, copy, expectedRevision, paths);
    });
}

QFuture<MergeResult> LocalWorkspaceService::merge(QUuid id, std::optional<qint64> expectedRevision,
                                                  QList<MergeSettlement> settlements)
{
    return performUndoable(UndoableAction::merge, [=](const Workspace &workspace) {
        return CopyMerge(workspace).run(id, expectedRevision, settlements);
    });
}

QFuture<SkillDetail> LocalWorkspaceService::adoptHandEdits(QUuid id, std::optional<qint64> expectedRevision)
{
    return performUndoable(UndoableAction::handEdits, [=](const Workspace &workspace) {
        return CopyAdoption(workspace).adoptHandEdits(id, expectedRevision);
    });
}

QFuture<QSet<QUuid>> LocalWorkspaceService::editedByHand(QSet<QUuid> ids)
{
    return perform(LockMode::Shared,
                   [=](const Workspace &workspace) { return CopyAdoption(workspace).editedByHand(ids); });
}

QFuture<std::optional<QByteArray>> LocalWorkspaceService::readFile(QUuid id, std::optional<TargetKind> copy,
                                                                   QString relativePath)
{
    return perform(LockMode::Shared, [=](const Workspace &workspace) {
        return CopyInspector(workspace).readFile(id, copy, relativePath);
    });
}

QFuture<QList<TargetOccupant>> LocalWorkspaceService::occupants(QList<TargetPlace> places)
{
    return perform(LockMode::Shared,
                   [=](const Workspace &workspace) { return occupantsOf(workspace, places); });
}

QFuture<TargetComparison> LocalWorkspaceService::compareTargets(QString slug)
{
    return perform(LockMode::Shared,
                   [=](const Workspace &workspace) { return TargetComparer(workspace, slug).compare(); });
}

QFuture<std::optional<QByteArray>> LocalWorkspaceService::readTargetFile(QString slug, TargetKind target,
                                                                         QString relativePath)
{
    return perform(LockMode::Shared, [=](const Workspace &workspace) {
        return TargetComparer(workspace, slug).readFile(target, relativePath);
    });
}

QFuture<QList<NewSkill>> LocalWorkspaceService::newSkills()
{
    return perform(LockMode::Shared, [](const Workspace &workspace) { return vornel::newSkills(workspace); });
}

QFuture<QList<NewSkill>> LocalWorkspaceService::ignoreNewSkills(QList<NewSkill> skills)
{
    return perform(LockMode::Exclusive, [=](const Workspace &workspace) {
        vornel::ignoreNewSkills(workspace, skills);
        return vornel::newSkills(workspace);
    });
}

QFuture<QHash<QUuid, QDateTime>> LocalWorkspaceService::trashDates()
{
    return perform(LockMode::Shared,
                   [](const Workspace &workspace) { return SkillTrash(workspace).dates(); });
}

} // namespace vornel

#include "LocalWorkspaceOperation.h"

#include <VORNELInfrastructure/Adoption/VersionReturn.h>
#include <VORNELInfrastructure/History/HistoryExtents.h>
#include <VORNELInfrastructure/History/VersionInspector.h>
#include <VORNELInfrastructure/Recovery/SetAsideRestore.h>
#include <VORNELInfrastructure/Undo/UndoRun.h>

/// The service's operations on what is kept: the history, what can be undone, and what was set aside.
namespace vornel {

QFuture<QList<HistoryEntry>> LocalWorkspaceService::history(QUuid id)
{
    return perform(LockMode::Shared,
                   [=](const Workspace &workspace) { return VersionInspector(workspace).history(id); });
}

QFuture<HistoryComparison> LocalWorkspaceService::compareVersion(QUuid id, QString entry,
                                                                 std::optional<QString> other)
{
    return perform(LockMode::Shared, [=](const Workspace &workspace) {
        return VersionInspector(workspace).compare(id, entry, other);
    });
}

QFuture<std::optional<QByteArray>> LocalWorkspaceService::readVersionFile(QUuid id, QString entry,
                                                                          QString relativePath)
{
    return perform(LockMode::Shared, [=](const Workspace &workspace) {
        return VersionInspector(workspace).readFile(id, entry, relativePath);
    });
}

QFuture<SkillDetail> LocalWorkspaceService::revert(QUuid id, qint64 expectedRevision, QString entry,
                                                   QStringList paths)
{
    return performUndoable(UndoableAction::reversion, [=](const Workspace &workspace) {
        return returnToVersion(workspace, id, expectedRevision, entry, paths);
    });
}

QFuture<HistoryExtent> LocalWorkspaceService::historyExtent()
{
    return perform(LockMode::Shared,
                   [](const Workspace &workspace) { return HistoryExtents(workspace).all(); });
}

QFuture<HistoryExtent> LocalWorkspaceService::prune(HistoryPruning pruning)
{
    return perform(pruning.isRehearsal ? LockMode::Shared : LockMode::Exclusive,
                   [=](const Workspace &workspace) { return HistoryExtents(workspace).prune(pruning); });
}

QFuture<WorkspaceOverview> LocalWorkspaceService::undo(QUuid step)
{
    return m_executor.submit<WorkspaceOverview>([this, step](QPromise<WorkspaceOverview> &) {
        UndoableOperation operation = m_undo.last(step);
        const auto remember = qScopeGuard([&] {
            if (operation.changes.empty())
                m_undo.remember(std::move(operation.done),
                                {.action = operation.step.action, .isUndo = !operation.step.isUndo});
            else
                m_undo.resume(std::move(operation));
        });
        const auto takeBack = [&](const Workspace &workspace) {
            UndoRun(workspace, operation.changes).run();
            return overview(workspace);
        };
        return runLocked(LockMode::Exclusive, takeBack, operation.done);
    });
}

QFuture<QList<SetAsideCopy>> LocalWorkspaceService::setAsideCopies()
{
    return perform(LockMode::Shared,
                   [](const Workspace &workspace) { return RecoveryFolder(workspace).list(); });
}

QFuture<HistoryComparison> LocalWorkspaceService::compareSetAside(QString id)
{
    return perform(LockMode::Shared,
                   [=](const Workspace &workspace) { return RecoveryFolder(workspace).compare(id); });
}

QFuture<std::optional<QByteArray>> LocalWorkspaceService::readSetAsideFile(QString id, QString relativePath)
{
    return perform(LockMode::Shared, [=](const Workspace &workspace) {
        return RecoveryFolder(workspace).readFile(id, relativePath);
    });
}

QFuture<SkillDetail> LocalWorkspaceService::restoreAsSkill(QString id, QString slug)
{
    return perform(LockMode::Exclusive,
                   [=](const Workspace &workspace) { return SetAsideRestore(workspace).asSkill(id, slug); });
}

QFuture<SkillDetail> LocalWorkspaceService::restoreAsRevision(QString id, QUuid skill,
                                                              std::optional<qint64> expectedRevision)
{
    return performUndoable(UndoableAction::reversion, [=](const Workspace &workspace) {
        return SetAsideRestore(workspace).asRevision(id, skill, expectedRevision);
    });
}

QFuture<QList<SetAsideCopy>> LocalWorkspaceService::deleteSetAside(QStringList ids)
{
    return perform(LockMode::Exclusive, [=](const Workspace &workspace) {
        const RecoveryFolder recovery(workspace);
        recovery.remove(ids);
        return recovery.list();
    });
}

} // namespace vornel

#pragma once

#include "CrashRecovery.h"
#include "LocalWorkspaceService.h"
#include "WorkspaceBootstrap.h"

#include <VORNELCore/Errors/VORNELWorkspaceError.h>

#include <QScopeGuard>

#include <optional>

/// How an operation of the service runs: for the files that hold the operations.
namespace vornel {

template <typename Operation>
auto LocalWorkspaceService::runLocked(LockMode mode, const Operation &operation, UndoRecording &changes)
{
    if (!m_configuration)
        throw VORNELWorkspaceError::notBootstrapped();
    m_manager->confine(m_configuration->roots());
    auto lock = std::make_optional(m_manager->lock(m_configuration->bookkeeping(), mode));
    const Workspace workspace = workspaceOf(*m_configuration, changes);
    if (mode == LockMode::Shared && hasHalfRenamedSkills(workspace)) {
        lock.reset();
        lock.emplace(m_manager->lock(m_configuration->bookkeeping(), LockMode::Exclusive));
        finishRenames(workspace);
    }
    if (mode == LockMode::Exclusive) {
        m_undo.forget();
        refuseNewerWorkspace(workspace);
        restoreSkills(workspace);
    }
    return operation(workspace);
}

template <typename Operation>
auto LocalWorkspaceService::runLocked(LockMode mode, const Operation &operation)
{
    UndoRecording changes;
    return runLocked(mode, operation, changes);
}

template <typename Operation>
auto LocalWorkspaceService::performUndoable(UndoableAction action, Operation operation)
{
    using Result = std::invoke_result_t<Operation, const Workspace &>;
    return m_executor.submit<Result>([this, action, operation = std::move(operation)](QPromise<Result> &) {
        UndoRecording changes;
        const auto remember = qScopeGuard([&] {
            if (!changes.empty())
                m_undo.remember(std::move(changes), {.action = action});
        });
        return runLocked(LockMode::Exclusive, operation, changes);
    });
}

template <typename Operation>
auto LocalWorkspaceService::perform(LockMode mode, Operation operation)
{
    using Result = std::invoke_result_t<Operation, const Workspace &>;
    return m_executor.submit<Result>([this, mode, operation = std::move(operation)](QPromise<Result> &) {
        return runLocked(mode, operation);
    });
}

template <typename Operation>
QFuture<WorkspaceOverview> LocalWorkspaceService::change(Operation operation)
{
    return perform(LockMode::Exclusive, [this, operation = std::move(operation)](const Workspace &workspace) {
        operation(workspace);
        return overview(workspace);
    });
}

} // namespace vornel

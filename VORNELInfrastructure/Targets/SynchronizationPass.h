#pragma once

#include <VORNELCore/Services/CopyRepairing.h>
#include <VORNELInfrastructure/Skills/SkillRecords.h>

#include <functional>

namespace vornel {

/// The synchronisation of several skills, in turns between which others may use the workspace.
class SynchronizationPass
{
public:
    SynchronizationPass(QList<QUuid> ids, std::stop_token stop)
        : m_ids(std::move(ids)), m_stop(std::move(stop))
    {}

    /// Goes on for about half a second, and tells after each skill how many are done. Every manifest is read
    /// once, and skills that are in sync side by side.
    void takeTurn(const Workspace &workspace, const std::function<void(int done)> &progress);

    /// Lets the skills that are left share a failure.
    void giveUp(const std::exception_ptr &failure);

    bool isDone() const;

    /// Those of the skills it has come to.
    const QList<SyncOutcome> &outcomes() const { return m_outcomes; }

private:
    QList<QUuid> m_ids;
    std::stop_token m_stop;
    QList<SyncOutcome> m_outcomes;
};

} // namespace vornel

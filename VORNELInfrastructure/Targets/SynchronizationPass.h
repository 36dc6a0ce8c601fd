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

    /// Goes on for about half a second, and reports after each skill how many are done. Every manifest is
    /// read once; skills are checked side by side, and only those that aren't in sync are synchronised.
    void takeTurn(const Workspace &workspace, const std::function<void(int done)> &progress);

    /// Ends the pass with this failure as the outcome of each skill that is left.
    void giveUp(const std::exception_ptr &failure);

    bool isDone() const;

    /// The outcomes so far, in the order of the skills.
    const QList<SyncOutcome> &outcomes() const { return m_outcomes; }

private:
    QList<QUuid> m_ids;
    std::stop_token m_stop;
    QList<SyncOutcome> m_outcomes;
};

} // namespace vornel

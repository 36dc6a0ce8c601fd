#pragma once

#include <VORNELCore/Records/HistoryRecords.h>
#include <VORNELInfrastructure/Workspace/Workspace.h>

#include <set>
#include <string>

namespace vornel {

/// Tells how much of the disk versions take, and removes those that aren't wanted. Does and throws what
/// `HistoryKeeping` says.
class HistoryExtents
{
public:
    explicit HistoryExtents(const Workspace &workspace) : m_workspace(workspace) {}

    /// All versions of all skills.
    HistoryExtent all() const;

    HistoryExtent prune(const HistoryPruning &pruning) const;

private:
    QList<QUuid> skills() const;
    std::set<std::string> unwanted(const QUuid &id, const HistoryPruning &pruning) const;
    HistoryExtent extentOf(const QUuid &id, const std::set<std::string> &entries) const;

    const Workspace &m_workspace;
};

} // namespace vornel

#pragma once

#include "SkillFolderStore.h"
#include "SkillRecords.h"

namespace vornel {

/// Installs a skill into the assistants' folders, and takes it out of them.
class TargetSynchronizer
{
public:
    explicit TargetSynchronizer(const Workspace &workspace) : m_workspace(workspace), m_store(workspace) {}

    /// Makes both copies equal to the canonical folder. A failed target doesn't stop the other: failures are
    /// remembered, then thrown as `partialSync`.
    void synchronize(const SkillRecord &skill) const;

    /// Moves both copies into the recovery folder. A failed target doesn't stop the other: failures are
    /// remembered, then thrown as `partialSync`.
    void removeCopies(const SkillRecord &skill) const;

private:
    void installTargetCopy(const SkillRecord &skill, TargetKind kind) const;
    void removeTargetCopy(const QString &slug, TargetKind kind) const;

    /// Runs `action` for every target. Remembers those for which it threw, and throws `partialSync` if any.
    template <typename Action>
    void forEachTarget(const QUuid &id, const Action &action) const;

    std::filesystem::path recoveryPlace(const QString &label, TargetKind kind, const QString &slug) const;

    const Workspace &m_workspace;
    SkillFolderStore m_store;
};

} // namespace vornel

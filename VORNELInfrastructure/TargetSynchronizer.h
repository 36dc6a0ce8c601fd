#pragma once

#include "SkillFolderStore.h"
#include "SkillRecords.h"

#include <map>
#include <vector>

namespace vornel {

/// Installs skills into the assistants' folders, and takes them out.
class TargetSynchronizer
{
public:
    explicit TargetSynchronizer(const Workspace &workspace) : m_workspace(workspace), m_store(workspace) {}

    /// Makes both copies equal to the canonical folder. A failed target doesn't stop the other: failures are
    /// remembered, then thrown as `partialSync`.
    void synchronize(const SkillRecord &skill) const;

    /// The same for many skills, whose copies wait for the disk together. Returns the targets that failed for
    /// any.
    QSet<TargetKind> synchronizeAll(const QList<SkillRecord> &skills) const;

    /// Moves both copies into the recovery folder. A failed target doesn't stop the other: failures are
    /// remembered, then thrown as `partialSync`.
    void removeCopies(const SkillRecord &skill) const;

private:
    struct Install;
    using Failures = std::map<TargetKind, std::exception_ptr>;

    /// Sees to it that a target's root is there, and no link.
    void prepareRoot(TargetKind kind) const;

    /// Copies the skill to staging for each target whose copy differs, but for those of no use.
    void stageCopies(Install &install, const Failures &unusable) const;
    void stageCopy(Install &install, TargetKind kind, const std::string &canonicalDigest) const;
    void publishCopies(std::vector<Install> &installs) const;
    void removeTargetCopy(const QString &slug, TargetKind kind) const;

    /// Keeps which targets of a skill failed, if any, each with its reason.
    void remember(const QUuid &id, const Failures &failures) const;

    std::string digestOf(const std::filesystem::path &folder) const;
    std::filesystem::path recoveryPlace(const QString &label, TargetKind kind, const QString &slug) const;

    const Workspace &m_workspace;
    SkillFolderStore m_store;
};

} // namespace vornel

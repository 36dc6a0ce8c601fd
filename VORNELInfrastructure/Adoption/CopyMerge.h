#pragma once

#include "TreeMerge.h"

#include <VORNELInfrastructure/Disk/Stage.h>
#include <VORNELInfrastructure/Skills/SkillRecords.h>

#include <list>
#include <set>
#include <vector>

namespace vornel {

/// Joins what both copies of a skill have changed into its next revision. Does and throws what
/// `CopyAdopting::merge` says.
class CopyMerge
{
public:
    explicit CopyMerge(const Workspace &workspace) : m_workspace(workspace) {}

    MergeResult run(const QUuid &id, std::optional<qint64> expectedRevision,
                    const QList<MergeSettlement> &settlements);

private:
    FileTreeSnapshot sideOf(const std::optional<FileTreeSnapshot> &copy, const FileTreeSnapshot &content);
    const FileTreeSnapshot *originOf(const FileTreeSnapshot &copy, const FileTreeSnapshot &content) const;
    std::vector<FileTreeSnapshot> formerOf(const SkillManifest &manifest,
                                           const FileTreeSnapshot &content) const;
    std::vector<FileTreeSnapshot> keptOf(const QUuid &id, qint64 revision) const;
    void keepMerged(const SkillManifest &manifest, TargetKind target,
                    const std::optional<FileTreeSnapshot> &copy, const std::string &result) const;

    const Workspace &m_workspace;
    std::vector<FileTreeSnapshot> m_former; ///< what copies may have been made from before
    std::list<Stage> m_stages;              ///< where sides of the merge stand that are no copies
    std::set<std::string> m_unsettled;      ///< paths that only the user can decide
};

} // namespace vornel

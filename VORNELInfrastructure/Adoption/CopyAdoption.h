#pragma once

#include "ComposedTree.h"

#include <VORNELCore/Records/SkillMerge.h>
#include <VORNELInfrastructure/Skills/SkillAuthoring.h>

#include <QSet>
#include <QStringList>

namespace vornel {

class CopyDrift;

/// Makes revisions of what was written in the assistants' copies, or by hand in a skill's own folder. Does
/// and throws what `CopyAdopting` says.
class CopyAdoption
{
public:
    explicit CopyAdoption(const Workspace &workspace)
        : m_workspace(workspace), m_store(workspace), m_authoring(workspace)
    {}

    SkillDetail adopt(const QUuid &id, TargetKind copy, std::optional<qint64> expectedRevision,
                      const QStringList &paths) const;
    MergeResult merge(const QUuid &id, std::optional<qint64> expectedRevision,
                      const QList<MergeSettlement> &settlements) const;
    SkillDetail adoptHandEdits(const QUuid &id, std::optional<qint64> expectedRevision) const;
    QSet<QUuid> editedByHand(const QSet<QUuid> &ids) const;

private:
    FileTreeSnapshot contentOf(const SkillRecord &skill) const;
    FileTreeSnapshot copyOf(const SkillRecord &skill, TargetKind target) const;
    FileTreeSnapshot editedCopy(const SkillRecord &skill, TargetKind target, const FileTreeSnapshot &content,
                                CopyDrift &drift) const;
    SkillDetail revise(const SkillRecord &skill, ComposedTree tree,
                       std::optional<TargetKind> leftAlone) const;
    void keepMerged(const SkillRecord &skill, TargetKind target, const FileTreeSnapshot &copy,
                    const std::string &result) const;
    void requireText(const SkillRecord &skill, const ComposedTree &tree) const;
    bool isEditedByHand(const SkillRecord &skill) const;

    const Workspace &m_workspace;
    SkillFolderStore m_store;
    SkillAuthoring m_authoring;
};

} // namespace vornel

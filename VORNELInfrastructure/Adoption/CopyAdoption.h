#pragma once

#include <VORNELInfrastructure/Skills/SkillAuthoring.h>
#include <VORNELInfrastructure/Tree/FileTreeSnapshot.h>

#include <QSet>
#include <QStringList>

namespace vornel {

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
    SkillDetail adoptHandEdits(const QUuid &id, std::optional<qint64> expectedRevision) const;
    QSet<QUuid> editedByHand(const QSet<QUuid> &ids) const;

private:
    FileTreeSnapshot copyOf(const SkillRecord &skill, TargetKind target) const;
    bool isEditedByHand(const SkillRecord &skill) const;

    const Workspace &m_workspace;
    SkillFolderStore m_store;
    SkillAuthoring m_authoring;
};

} // namespace vornel

#pragma once

#include "RecoveryFolder.h"

#include <VORNELInfrastructure/Skills/SkillAuthoring.h>

namespace vornel {

/// Brings back what was set aside. Does and throws what `RecoveryKeeping` says.
class SetAsideRestore
{
public:
    explicit SetAsideRestore(const Workspace &workspace)
        : m_workspace(workspace), m_recovery(workspace), m_store(workspace), m_authoring(workspace)
    {}

    SkillDetail asSkill(const QString &id, const QString &slug) const;
    SkillDetail asRevision(const QString &id, const QUuid &skill,
                           std::optional<qint64> expectedRevision) const;

private:
    void discardIfHeld(const std::filesystem::path &copy, const QString &slug) const;

    const Workspace &m_workspace;
    RecoveryFolder m_recovery;
    SkillFolderStore m_store;
    SkillAuthoring m_authoring;
};

} // namespace vornel

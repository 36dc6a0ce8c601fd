#pragma once

#include "OfferedSkills.h"

#include <VORNELCore/Records/ExchangeRecords.h>
#include <VORNELInfrastructure/Skills/SkillAuthoring.h>

namespace vornel {

/// Adds skills that come from elsewhere. Does and throws what `SkillExchange` says.
class SkillAdder
{
public:
    /// Copies what the sources hold into the staging folder.
    SkillAdder(const Workspace &workspace, const QList<std::filesystem::path> &sources);

    QList<SkillAddition> review() const;
    std::optional<QByteArray> readFile(const SkillAddition &reviewed, const QString &relativePath) const;
    QList<SkillDetail> add(const QList<SkillAddition> &reviewed) const;

private:
    SkillAddition reviewed(const QString &slug, const FileTreeSnapshot &content) const;
    void requireDecisions(const QList<SkillAddition> &reviewed) const;
    SkillDetail add(const SkillAddition &addition) const;

    /// The active skill of this slug; null where there is none.
    const SkillRecord *known(const QString &slug) const;

    const Workspace &m_workspace;
    SkillAuthoring m_authoring;
    QList<SkillRecord> m_active;
    OfferedSkills m_offered;
};

} // namespace vornel

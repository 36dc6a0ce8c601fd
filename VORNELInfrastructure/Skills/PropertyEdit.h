#pragma once

#include "SkillRecords.h"

#include <VORNELCore/Records/SkillProperties.h>
#include <VORNELInfrastructure/Tree/FileTreeSnapshot.h>

#include <optional>
#include <vector>

namespace vornel {

/// Changes the properties of skills.
class PropertyEdit
{
public:
    explicit PropertyEdit(const Workspace &workspace) : m_workspace(workspace) {}

    /// Does what `PropertyEditing::setProperties` says.
    QList<SkillDetail> run(const QList<QUuid> &ids, const PropertyChange &change,
                           std::optional<qint64> expectedRevision) const;

    /// Does what `PropertyEditing::reviewProperties` says.
    QList<SkillProperties> review(const QList<QUuid> &ids, const PropertyChange &change) const;

    /// The same for `PropertyEditing::sizeOf`.
    qint64 sizeOf(const QUuid &id) const;

    /// Throws what makes these properties impossible for the skill.
    void check(const SkillManifest &skill, const SkillProperties &wanted) const;

    /// Makes the skill's next revision with these properties, which have been checked. The history keeps the
    /// one before too. Returns what the skill's folder holds then.
    FileTreeSnapshot revise(SkillRecord &skill, const SkillProperties &wanted) const;

private:
    /// A skill, and how it is to be.
    struct Planned
    {
        SkillRecord skill;
        SkillProperties wanted;

        bool isChange() const { return wanted != SkillProperties::of(skill.manifest); }
    };

    std::vector<Planned> plan(const QList<QUuid> &ids, const PropertyChange &change,
                              std::optional<qint64> expectedRevision) const;

    const Workspace &m_workspace;
};

} // namespace vornel

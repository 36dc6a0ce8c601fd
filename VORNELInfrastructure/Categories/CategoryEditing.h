#pragma once

#include <VORNELInfrastructure/Skills/SkillRecords.h>

#include <QSet>

namespace vornel {

/// Creates, changes and deletes categories, and moves skills between them.
class CategoryEditing
{
public:
    explicit CategoryEditing(const Workspace &workspace) : m_workspace(workspace) {}

    void create(const QString &name, const QString &colorHex) const;
    void update(const QString &id, const QString &name, const QString &colorHex) const;

    /// The skills of the category, in the trash too, move to "other".
    void remove(const QString &id) const;

    /// Throws `skillNotFound` at the first unknown identifier; the skills moved before stay moved.
    void assign(const QSet<QUuid> &ids, const QString &category) const;

private:
    /// Writes the category into the manifest, as the skill's next revision.
    void rewrite(SkillRecord &skill, const QString &category) const;

    /// The same for an active skill, whose history keeps the revisions before and after.
    void setCategory(SkillRecord skill, const QString &category) const;

    const Workspace &m_workspace;
};

} // namespace vornel

#pragma once

#include "SkillFolderStore.h"
#include "SkillRecords.h"

namespace vornel {

/// Moves skills to the trash and back, and deletes them for good.
class SkillTrash
{
public:
    explicit SkillTrash(const Workspace &workspace) : m_workspace(workspace), m_store(workspace) {}

    /// Moves the skills one by one; what was moved before a failure stays in the trash. A skill whose copies
    /// can't be taken out of the assistants' folders stays in the library: `partialSync`.
    void moveToTrash(const QSet<QUuid> &ids) const;

    void restore(const QUuid &id) const;

    /// The same, with the copies that were taken out, and stand at these places, in the targets.
    void restore(const QUuid &id, const TakenOut &copies) const;

    void deletePermanently(const QUuid &id) const;
    void empty() const;

    /// When each trashed skill came there, by its identifier.
    QHash<QUuid, QDateTime> dates() const;

private:
    void moveToTrash(const SkillRecord &skill) const;
    void refuseDoubledSlug(const SkillManifest &manifest) const;
    SkillRecord takeOut(const QUuid &id) const;
    void bringBack(const std::filesystem::path &source, const SkillRecord &skill) const;
    void remove(const QUuid &id) const;

    /// The skills in the trash, without the one of this identifier.
    QList<SkillRecord> trashedBut(const QUuid &id) const;

    const Workspace &m_workspace;
    SkillFolderStore m_store;
};

} // namespace vornel

#pragma once

#include <VORNELInfrastructure/Skills/SkillRecords.h>
#include <VORNELInfrastructure/Tree/FileTreeSnapshot.h>

#include <QSet>

#include <vector>

namespace vornel {

/// Takes back what an operation has changed, as `Undoing::undo` says: first everything is checked, then
/// brought back. What the operation hasn't changed is neither looked at nor touched.
class UndoRun
{
public:
    /// Where `run` fails, `changes` keeps what is left to be taken back: nothing where any of it has moved
    /// on.
    UndoRun(const Workspace &workspace, UndoRecording &changes);

    void run();

private:
    /// A skill of which a content or copies are brought back, and from where.
    struct Return
    {
        SkillRecord skill;
        std::optional<FileTreeSnapshot> content = {};
        std::map<TargetKind, FileTreeSnapshot> copies = {};
        QSet<TargetKind> leftAlone = {}; ///< by the revision that brings the content back
    };

    void checkAll();
    void check(const QUuid &id, const SkillChange &change);
    void checkTrashed(const QUuid &id, const SkillChange &change) const;
    Return returnOf(const SkillRecord &skill, const SkillChange &change) const;
    void bringBackAll() const;
    void bringBack(const Return &former) const;
    FileTreeSnapshot kept(const SkillRecord &skill, const std::string &digest) const;

    const Workspace &m_workspace;
    UndoRecording &m_changes;
    QList<SkillRecord> m_active;
    QList<SkillRecord> m_trashed;
    std::vector<Return> m_returns;
    std::vector<std::pair<SkillRecord, SkillProperties>> m_properties; ///< which skills get back which ones
    QSet<QUuid> m_toTrash;
    QSet<QUuid> m_fromTrash;
};

} // namespace vornel

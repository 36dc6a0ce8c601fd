#pragma once

#include "ConflictList.h"

#include <VORNELApp/Model/Library.h>
#include <VORNELApp/Model/SelectedSkill.h>

namespace vornel {

/// Takes what was written elsewhere than in the editor into the library, as it was shown: the revision that
/// is known here is the one that is expected. A text that is being edited stays, and counts as changed
/// elsewhere.
class Adoption : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("belongs to the model")
    Q_PROPERTY(bool isMerging READ isMerging NOTIFY isMergingChanged)
    Q_PROPERTY(QUuid skillID READ skillID NOTIFY isMergingChanged)
    Q_PROPERTY(vornel::ConflictList *conflicts READ conflicts CONSTANT)

public:
    Adoption(std::shared_ptr<WindowServicing> service, Operations &operations, Library &library,
             SelectedSkill &selected);

    /// Makes a revision of the content of a copy, or only of these files of it.
    Q_INVOKABLE void adopt(QUuid id, vornel::TargetKind copy, QStringList paths = {});

    /// Makes a revision of what was edited by hand in the skill's own folder.
    Q_INVOKABLE void adoptHandEdits(QUuid id);

    /// Joins the edits of both copies; where they are in conflict, `isMerging` begins to hold.
    Q_INVOKABLE void merge(QUuid id);

    /// Joins them as the user has settled the conflicts. Those that are new are listed, too.
    Q_INVOKABLE void finishMerge();

    /// Gives the merge up for now: what is settled of this skill is remembered for its next one.
    Q_INVOKABLE void leaveMerge();

    /// Whether conflicts wait for the user; and of which skill.
    bool isMerging() const { return m_isMerging; }
    const QUuid &skillID() const { return m_skillID; }
    ConflictList *conflicts() { return &m_conflicts; }

Q_SIGNALS:
    void isMergingChanged();

private:
    QCoro::Task<> show(SkillDetail skill, QString confirmation);
    QCoro::Task<> join(QList<MergeSettlement> settlements);
    QCoro::Task<> follow(MergeResult result);
    void endMerge();
    void setMerging(bool isMerging);
    std::optional<qint64> revision(const QUuid &id) const;

    const std::shared_ptr<WindowServicing> m_service;
    Operations &m_operations;
    Library &m_library;
    SelectedSkill &m_selected;
    bool m_isMerging = false;
    QUuid m_skillID;
    ConflictList m_conflicts;
};

} // namespace vornel

#pragma once

#include <VORNELApp/Model/LatestAnswer.h>
#include <VORNELCore/Records/WorkspaceModels.h>
#include <VORNELCore/Services/SkillChecking.h>

#include <QHash>
#include <QObject>
#include <QSet>

namespace vornel {

/// How many errors the skills of an overview have, as assistants read them. They are checked a few at a time,
/// so that nothing else waits for long, and again once they have another revision or their copies stand
/// otherwise.
class SkillChecks : public QObject
{
    Q_OBJECT

public:
    explicit SkillChecks(SkillChecking &checking, QObject *parent = nullptr);

    /// Checks what has not been checked; `changed` follows where that tells anything new.
    void follow(const QList<SkillSummary> &skills);

    int errorCount(const QUuid &id) const { return m_found.value(id).errors; }

    /// The skills that have errors.
    QSet<QUuid> faulty() const;

Q_SIGNALS:
    void changed();

private:
    struct Found
    {
        qint64 revision = 0;
        SyncState state = SyncState::unknown; ///< of the copies, which an edit by hand changes
        int errors = 0;
    };
    using Problems = Answer<QList<SkillProblem>>;

    void checkNext();
    void take(const Problems &answer);

    SkillChecking &m_checking;
    QList<SkillSummary> m_skills;
    QList<SkillSummary> m_asked; ///< of which the answer is awaited
    QHash<QUuid, Found> m_found;
    LatestAnswer<Problems> m_looking;
};

} // namespace vornel

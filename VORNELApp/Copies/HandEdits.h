#pragma once

#include <VORNELCore/Records/WorkspaceModels.h>
#include <VORNELCore/Services/CopyAdopting.h>

#include <QObject>

namespace vornel {

/// Which of the skills that need attention were edited by hand in their own folder.
class HandEdits : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Asks anew, of those of an overview; `changed` follows where it is told otherwise than before.
    void follow(const QList<SkillSummary> &needingAttention, CopyAdopting &service);

    bool contains(const QUuid &id) const { return m_ids.contains(id); }

Q_SIGNALS:
    void changed();

private:
    void show(const QSet<QUuid> &ids);

    QSet<QUuid> m_ids;
    int m_request = 0; ///< counts the questions: only the answer to the last one is shown
};

} // namespace vornel

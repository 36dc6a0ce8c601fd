#pragma once

#include <VORNELApp/Model/LatestAnswer.h>
#include <VORNELCore/Records/WorkspaceModels.h>
#include <VORNELCore/Services/CopyInspecting.h>

#include <QObject>

namespace vornel {

/// What is known of the copies that aren't right, for the skills that an overview says have such ones.
class WrongCopies : public QObject
{
    Q_OBJECT

public:
    explicit WrongCopies(QObject *parent = nullptr);

    /// Asks anew, if any of these skills of an overview has a failed or drifted copy; `changed` follows.
    void follow(const QList<SkillSummary> &skills, CopyInspecting &inspector);

    /// Names the assistants, the reasons and the places of a skill's failed copies; empty without any.
    QString problem(const QUuid &id) const;

    /// The same for copies that were looked at, of one skill.
    static QString problem(const QList<CopyInspection> &copies);

    /// How the copies of a skill stand, as the user reads it.
    QString stateText(const SkillSummary &skill) const;

Q_SIGNALS:
    void changed();

private:
    using Copies = QHash<QUuid, QList<CopyInspection>>;

    void show(const Copies &copies);

    Copies m_copies;
    LatestAnswer<Answer<Copies>> m_looking;
};

} // namespace vornel

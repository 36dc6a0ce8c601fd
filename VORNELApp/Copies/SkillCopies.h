#pragma once

#include "CopyDifferences.h"

#include <VORNELApp/Model/AppModel.h>

#include <QPointer>
#include <QQmlParserStatus>

namespace vornel {

/// How the installed copies of a skill stand, looked at anew after each operation.
class SkillCopies : public QObject, public QQmlParserStatus
{
    Q_OBJECT
    Q_INTERFACES(QQmlParserStatus)
    QML_ELEMENT
    Q_PROPERTY(vornel::AppModel *model MEMBER m_model REQUIRED)
    Q_PROPERTY(QUuid skillID READ skillID WRITE setSkillID NOTIFY skillIDChanged)
    Q_PROPERTY(QVariantList targets READ targets NOTIFY changed)
    Q_PROPERTY(bool hasDrifted READ hasDrifted NOTIFY changed)
    Q_PROPERTY(bool hasEdits READ hasEdits NOTIFY changed)
    Q_PROPERTY(bool hasUnreadable READ hasUnreadable NOTIFY changed)
    Q_PROPERTY(bool hasFailed READ hasFailed NOTIFY changed)
    Q_PROPERTY(QString problem READ problem NOTIFY changed)
    Q_PROPERTY(vornel::CopyDifferences *differences READ differences CONSTANT)

public:
    using QObject::QObject;

    /// The skill whose copies are looked at; null for none.
    QUuid skillID() const { return m_skillID; }
    void setSkillID(QUuid id);

    /// One inspection for each assistant; none before the first look.
    QVariantList targets() const;

    /// Whether a copy holds something else than the canonical folder.
    bool hasDrifted() const;

    /// Whether a copy holds, as far as is known, what no revision of the skill does.
    bool hasEdits() const;

    /// Whether a copy can't be looked at, so that no synchronisation replaces it.
    bool hasUnreadable() const;

    /// Whether a copy has failed, for that reason or another.
    bool hasFailed() const;

    /// Why the last look failed, for the user: nobody knows then what the copies hold. Empty otherwise.
    QString problem() const { return m_problem; }

    /// What differs, copy by copy.
    CopyDifferences *differences() { return &m_differences; }

    /// Looks again; `checked` follows the last look.
    Q_INVOKABLE void check();

    void classBegin() override {}
    void componentComplete() override;

Q_SIGNALS:
    void skillIDChanged();
    void changed();
    void checked();

private:
    static QCoro::Task<> inspect(QPointer<SkillCopies> self, AppModel *model, QUuid id, int request);
    void follow();
    void show(const QList<TargetInspection> &inspections, const QString &problem);

    AppModel *m_model = nullptr;
    QUuid m_skillID;
    QList<TargetInspection> m_inspections;
    QString m_problem;
    CopyDifferences m_differences;
    int m_request = 0; ///< counts the looks: only the last one is shown
};

} // namespace vornel

#pragma once

#include "DifferentFileList.h"

#include <VORNELCore/Services/CopyInspecting.h>

namespace vornel {

/// How the installed copies of a skill stand.
class SkillCopies : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("belongs to what is asked before copies are replaced")
    Q_PROPERTY(QUuid skillID READ skillID NOTIFY changed)
    Q_PROPERTY(QVariantList targets READ targets NOTIFY changed)
    Q_PROPERTY(bool hasEdits READ hasEdits NOTIFY changed)
    Q_PROPERTY(bool canMerge READ canMerge NOTIFY changed)
    Q_PROPERTY(bool hasUnreadable READ hasUnreadable NOTIFY changed)
    Q_PROPERTY(bool hasFailed READ hasFailed NOTIFY changed)
    Q_PROPERTY(QString problem READ problem NOTIFY changed)
    Q_PROPERTY(vornel::DifferentFileList *differences READ differences CONSTANT)

public:
    explicit SkillCopies(CopyInspecting &inspector) : m_inspector(inspector) {}

    /// The skill whose copies are looked at; null for none.
    const QUuid &skillID() const { return m_skillID; }
    void setSkillID(const QUuid &id);

    /// One inspection for each assistant; none before the first look.
    QVariantList targets() const;

    /// Whether a copy holds something else than the canonical folder.
    bool hasDrifted() const;

    /// Whether a copy holds, as far as is known, what no revision of the skill does.
    bool hasEdits() const;

    /// Whether all copies do, so that their edits can be joined.
    bool canMerge() const;

    /// Whether a copy can't be looked at, so that no synchronisation replaces it.
    bool hasUnreadable() const;

    /// Whether a copy has failed, for that reason or another.
    bool hasFailed() const;

    /// Why the last look failed, for the user: nobody knows then what the copies hold. Empty otherwise.
    QString problem() const { return m_problem; }

    /// What differs, copy by copy.
    DifferentFileList *differences() { return &m_differences; }

    /// Looks at the copies, if there is a skill; `looked` follows the last look.
    void look();

Q_SIGNALS:
    void changed();
    void looked();

private:
    void show(const QList<CopyInspection> &inspections, const QString &problem);

    CopyInspecting &m_inspector;
    QUuid m_skillID;
    QList<CopyInspection> m_inspections;
    QString m_problem;
    DifferentFileList m_differences;
    int m_request = 0; ///< counts the looks: only the last one is shown
};

} // namespace vornel

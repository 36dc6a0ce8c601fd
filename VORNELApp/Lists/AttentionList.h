#pragma once

#include "SkillList.h"

#include <QTimer>

namespace vornel {

/// The skills that need attention, with how each of their copies stands. Copies are looked at one skill after
/// another, and only for the rows that ask, never for all of a long list.
class AttentionList : public vornel::SkillList // in full, for the tools that read the types of QML
{
    Q_OBJECT
    QML_ELEMENT

public:
    explicit AttentionList(QObject *parent = nullptr);

    /// Asks how the copies of a skill stand; its row follows.
    Q_INVOKABLE void look(QUuid id);

    /// The skills shown.
    Q_INVOKABLE QVariantList ids() const;

protected:
    void complete(SkillEntry &entry) const override;
    void renew() override;

private:
    void lookAtNext();
    void show(const QUuid &id, const QList<CopyInspection> &inspections);

    QHash<QUuid, QList<CopyInspection>> m_inspections;
    QSet<QUuid> m_current; ///< whose copies were looked at since the overview was last read
    QList<QUuid> m_wanted; ///< the last one is looked at first
    QTimer m_start;
    bool m_isLooking = false;
};

} // namespace vornel

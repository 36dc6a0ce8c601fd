#pragma once

#include "SkillList.h"

#include <VORNELApp/Actions/SkillSelection.h>
#include <VORNELApp/Model/LatestAnswer.h>

namespace vornel {

/// The trashed skills, with the time at which each came there.
class TrashList : public vornel::SkillList // in full, for the tools that read the types of QML
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(
        vornel::SkillSelection *selection READ selection WRITE setSelection NOTIFY selectionChanged REQUIRED)

public:
    explicit TrashList(QObject *parent = nullptr);

    SkillSelection *selection() const { return m_selection; }
    void setSelection(SkillSelection *selection);

Q_SIGNALS:
    void selectionChanged();

protected:
    void complete(SkillEntry &entry) const override;
    void renew() override;
    void timerEvent(QTimerEvent *event) override;

private:
    using Dates = QHash<QUuid, QDateTime>;

    SkillSelection *m_selection = nullptr;
    Dates m_dates;
    LatestAnswer<Answer<Dates>> m_looking;
};

} // namespace vornel

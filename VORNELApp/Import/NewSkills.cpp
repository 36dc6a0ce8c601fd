#include "NewSkills.h"

#include <VORNELApp/Model/Answer.h>
#include <VORNELCore/Library/Wording.h>

#include <utility>

namespace vornel {

void NewSkills::componentComplete()
{
    connect(m_model, &AppModel::overviewRead, this, &NewSkills::look);
    look();
}

void NewSkills::look()
{
    const auto follow = [this, request = ++m_request](const Answer<QList<NewSkill>> &answer) {
        if (m_request == request && answer.value)
            show(*answer.value);
    };
    QCoro::connect(answerOf(m_model->newSkills().newSkills()), this, follow);
}

void NewSkills::ignore()
{
    m_model->ignoreNewSkills(m_skills);
}

void NewSkills::show(const QList<NewSkill> &skills)
{
    m_skills = skills;
    const bool isTold = !m_model->skills(Destination::library).isEmpty();
    const QString notice = isTold ? Wording::newSkills(skills) : QString();
    if (std::exchange(m_notice, notice) != notice)
        Q_EMIT changed();
}

} // namespace vornel

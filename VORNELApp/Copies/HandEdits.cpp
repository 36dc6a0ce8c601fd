#include "HandEdits.h"

#include <VORNELApp/Model/Answer.h>

#include <utility>

namespace vornel {

void HandEdits::follow(const QList<SkillSummary> &needingAttention, CopyAdopting &service)
{
    const int request = ++m_request;
    QSet<QUuid> ids;
    for (const SkillSummary &skill : needingAttention)
        ids.insert(skill.id);
    if (ids.isEmpty())
        return show({});
    QCoro::connect(answerOf(service.editedByHand(ids)), this,
                   [this, request](const Answer<QSet<QUuid>> &answer) {
                       if (m_request == request)
                           show(answer.value.value_or(QSet<QUuid>()));
                   });
}

void HandEdits::show(const QSet<QUuid> &ids)
{
    if (std::exchange(m_ids, ids) != ids)
        Q_EMIT changed();
}

} // namespace vornel

#include "CollisionComparison.h"

#include <VORNELApp/Model/Answer.h>

namespace vornel {

void CollisionComparison::look(const QString &slug)
{
    show({}, {});
    const auto follow = [this, request = ++m_request](const Answer<TargetComparison> &answer) {
        if (m_request == request)
            show(answer.value.value_or(TargetComparison()), answer.outcome.message);
    };
    QCoro::connect(answerOf(m_model->targetComparer().compareTargets(slug)), this, follow);
}

void CollisionComparison::show(const TargetComparison &comparison, const QString &problem)
{
    m_comparison = comparison;
    m_problem = problem;
    m_files.setComparison(comparison);
    Q_EMIT changed();
}

} // namespace vornel

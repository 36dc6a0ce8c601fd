#include "SetAsideComparison.h"

#include <VORNELApp/Model/Answer.h>

namespace vornel {

void SetAsideComparison::look(const QString &copy, bool hasSkill)
{
    m_isKnown = false;
    m_problem.clear();
    show({}, hasSkill);
    QCoro::connect(answerOf(m_model->recovery().compareSetAside(copy)), this,
                   [this, hasSkill, request = ++m_request](const Answer<HistoryComparison> &answer) {
                       if (m_request != request)
                           return;
                       m_isKnown = answer.value.has_value();
                       m_problem = answer.outcome.message;
                       show(answer.value.value_or(HistoryComparison()), hasSkill);
                   });
}

/// The service tells what the library has otherwise; here it is told what the copy has.
void SetAsideComparison::show(const HistoryComparison &comparison, bool hasSkill)
{
    QList<FileDifference> found;
    qsizetype same = comparison.files.size();
    for (const FileDifference &difference : comparison.differences) {
        if (difference.change != FileChange::added && !difference.relativePath.endsWith(u'/'))
            --same;
        found.append({difference.relativePath, reversed(difference.change)});
    }
    if (!hasSkill) {
        for (const QString &file : comparison.files)
            found.append({file, FileChange::added});
    }
    m_sameCount = hasSkill ? static_cast<int>(same) : 0;
    m_files.setDifferences(found);
    Q_EMIT changed();
}

} // namespace vornel

#include "CopySurvey.h"

#include <VORNELApp/Model/Answer.h>

#include <algorithm>

namespace vornel {

namespace {

int countOf(Drift drift, const QList<CopyInspection> &inspections)
{
    return static_cast<int>(std::ranges::count(inspections, drift, &CopyInspection::drift));
}

bool hasFailed(const CopyInspection &inspection)
{
    return inspection.state == SyncState::failed;
}

} // namespace

void CopySurvey::begin(const QVariantList &ids)
{
    QSet<QUuid> wanted;
    for (const QVariant &id : ids)
        wanted.insert(id.toUuid());
    run(wanted);
}

void CopySurvey::repeat()
{
    run(m_ids);
}

void CopySurvey::run(const QSet<QUuid> &ids)
{
    QSet<QUuid> active;
    for (const SkillSummary &skill : m_model->skills(Destination::library)) {
        if (ids.contains(skill.id))
            active.insert(skill.id);
    }
    ++m_request;
    m_ids = active; // not earlier: `ids` may be this very set
    if (m_ids.isEmpty())
        return setRunning(false);
    m_editedCopies = 0;
    m_unexplainedCopies = 0;
    m_sawEveryCopy = true;
    setRunning(true);
    m_waiting = m_ids.values();
    lookAtNext();
}

void CopySurvey::lookAtNext()
{
    if (m_waiting.isEmpty()) {
        setRunning(false);
        Q_EMIT finished();
        return;
    }
    QCoro::connect(
        answerOf(m_model->inspector().inspectCopies(m_waiting.takeLast())), this,
        [this, request = m_request](const Answer<QList<CopyInspection>> &answer) {
            if (m_request != request)
                return;
            note(answer.value.value_or(QList<CopyInspection>())); // none of a skill that can't be read
            lookAtNext();
        });
}

void CopySurvey::note(const QList<CopyInspection> &inspections)
{
    m_editedCopies += countOf(Drift::edited, inspections);
    m_unexplainedCopies += countOf(Drift::unknown, inspections);
    if (inspections.isEmpty() || std::ranges::any_of(inspections, hasFailed))
        m_sawEveryCopy = false;
}

void CopySurvey::forget()
{
    ++m_request;
    setRunning(false);
}

void CopySurvey::synchronize()
{
    m_model->synchronizeSkills(m_ids);
}

void CopySurvey::setRunning(bool isRunning)
{
    if (std::exchange(m_isRunning, isRunning) != isRunning)
        Q_EMIT isRunningChanged();
}

} // namespace vornel

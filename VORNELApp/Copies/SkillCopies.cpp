#include "SkillCopies.h"

#include <VORNELApp/Model/Answer.h>

#include <algorithm>
#include <utility>

namespace vornel {

void SkillCopies::setSkillID(const QUuid &id)
{
    if (std::exchange(m_skillID, id) == id)
        return;
    ++m_request; // what is asked of the former skill is no matter any more
    m_inspections.clear();
    m_problem.clear();
    m_differences.setInspections({});
    Q_EMIT changed();
}

QVariantList SkillCopies::targets() const
{
    QVariantList targets;
    for (const CopyInspection &inspection : m_inspections)
        targets.append(QVariant::fromValue(inspection));
    return targets;
}

bool SkillCopies::hasDrifted() const
{
    return std::ranges::any_of(
        m_inspections, [](const CopyInspection &inspection) { return !inspection.differences.isEmpty(); });
}

bool SkillCopies::hasEdits() const
{
    return worstDrift(m_inspections) > Drift::outdated;
}

bool SkillCopies::canMerge() const
{
    return !m_inspections.isEmpty() && std::ranges::all_of(m_inspections, &CopyInspection::isAdoptable);
}

bool SkillCopies::hasUnreadable() const
{
    return std::ranges::any_of(m_inspections, &CopyInspection::isUnreadable);
}

bool SkillCopies::hasFailed() const
{
    return std::ranges::find(m_inspections, SyncState::failed, &CopyInspection::state) != m_inspections.end();
}

void SkillCopies::look()
{
    if (m_skillID.isNull())
        return;
    const auto show = [this, request = ++m_request](const Answer<QList<CopyInspection>> &answer) {
        if (m_request != request)
            return;
        // A skill that is gone has no copies to compare.
        const bool isGone = answer.outcome.isCase(WorkspaceErrorCase::SkillNotFound::name);
        this->show(answer.value.value_or(QList<CopyInspection>()),
                   isGone ? QString() : answer.outcome.message);
        Q_EMIT looked();
    };
    QCoro::connect(answerOf(m_inspector.inspectCopies(m_skillID)), this, show);
}

void SkillCopies::show(const QList<CopyInspection> &inspections, const QString &problem)
{
    if (m_inspections == inspections && m_problem == problem)
        return;
    m_inspections = inspections;
    m_problem = problem;
    m_differences.setInspections(inspections);
    Q_EMIT changed();
}

} // namespace vornel

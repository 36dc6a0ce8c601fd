#include "SkillCopies.h"

#include <VORNELCore/Errors/VORNELWorkspaceError.h>

#include <QCoro/QCoroFuture>

#include <algorithm>
#include <utility>

namespace vornel {

namespace {

bool isSkillNotFound(const std::exception &error)
{
    const auto *known = dynamic_cast<const VORNELWorkspaceError *>(&error);
    return known != nullptr && known->as<WorkspaceErrorCase::SkillNotFound>() != nullptr;
}

} // namespace

void SkillCopies::setSkillID(QUuid id)
{
    if (std::exchange(m_skillID, id) == id)
        return;
    Q_EMIT skillIDChanged();
    follow();
}

QVariantList SkillCopies::targets() const
{
    QVariantList targets;
    for (const TargetInspection &inspection : m_inspections)
        targets.append(QVariant::fromValue(inspection));
    return targets;
}

bool SkillCopies::hasDrifted() const
{
    return std::ranges::any_of(
        m_inspections, [](const TargetInspection &inspection) { return !inspection.differences.isEmpty(); });
}

bool SkillCopies::hasEdits() const
{
    return worstDrift(m_inspections) > Drift::outdated;
}

bool SkillCopies::hasUnreadable() const
{
    return std::ranges::any_of(m_inspections, &TargetInspection::isUnreadable);
}

bool SkillCopies::hasFailed() const
{
    return std::ranges::find(m_inspections, SyncState::failed, &TargetInspection::state) !=
           m_inspections.end();
}

void SkillCopies::check()
{
    inspect(this, m_model, m_skillID, ++m_request);
}

void SkillCopies::componentComplete()
{
    connect(m_model, &AppModel::selectedSkillChanged, this, &SkillCopies::follow); // it was read anew
    connect(m_model, &AppModel::isWorkingChanged, this, &SkillCopies::follow);
    follow();
}

void SkillCopies::follow()
{
    if (m_model != nullptr && !m_skillID.isNull() && !m_model->isWorking())
        check();
}

QCoro::Task<> SkillCopies::inspect(QPointer<SkillCopies> self, AppModel *model, QUuid id, int request)
{
    QList<TargetInspection> inspections;
    QString problem;
    try {
        inspections = co_await model->inspector().inspectTargets(id);
    } catch (const std::exception &error) {
        if (!isSkillNotFound(error)) // which has no copies to compare
            problem = AppModel::message(error);
    }
    if (self.isNull() || self->m_request != request)
        co_return;
    self->show(inspections, problem);
    Q_EMIT self->checked();
}

void SkillCopies::show(const QList<TargetInspection> &inspections, const QString &problem)
{
    if (m_inspections == inspections && m_problem == problem)
        return;
    m_inspections = inspections;
    m_problem = problem;
    m_differences.setInspections(inspections);
    Q_EMIT changed();
}

} // namespace vornel

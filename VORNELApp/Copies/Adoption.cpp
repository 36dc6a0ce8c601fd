#include "Adoption.h"

#include <QCoro/QCoroFuture>

#include <utility>

using namespace Qt::StringLiterals;

namespace vornel {

Adoption::Adoption(std::shared_ptr<WindowServicing> service, Operations &operations, Library &library,
                   SelectedSkill &selected)
    : m_service(std::move(service)), m_operations(operations), m_library(library), m_selected(selected)
{}

void Adoption::adopt(QUuid id, TargetKind copy, QStringList paths)
{
    m_operations.perform([this, id, copy, paths = std::move(paths)]() -> QCoro::Task<> {
        co_await show(co_await m_service->adopt(id, copy, revision(id), paths), u"ADOPTÉE"_s);
    });
}

void Adoption::adoptHandEdits(QUuid id)
{
    m_operations.perform([this, id]() -> QCoro::Task<> {
        co_await show(co_await m_service->adoptHandEdits(id, revision(id)), u"PRISE EN COMPTE"_s);
    });
}

void Adoption::merge(QUuid id)
{
    m_skillID = id;
    join({});
}

void Adoption::finishMerge()
{
    join(m_conflicts.settlements());
}

QCoro::Task<> Adoption::join(QList<MergeSettlement> settlements)
{
    const Operations::Running running(m_operations);
    const Outcome outcome = co_await m_operations.perform([this, &settlements]() -> QCoro::Task<> {
        co_await follow(co_await m_service->merge(m_skillID, revision(m_skillID), settlements));
    });
    if (outcome.isSynchronizationIncomplete())
        endMerge();
}

QCoro::Task<> Adoption::follow(MergeResult result)
{
    if (result.skill) {
        endMerge();
        co_await show(*result.skill, u"FUSIONNÉE"_s);
        co_return;
    }
    if (m_isMerging)
        m_conflicts.add(result.conflicts);
    else
        m_conflicts.begin(result.conflicts);
    setMerging(true);
}

void Adoption::endMerge()
{
    m_conflicts.begin({});
    setMerging(false);
}

void Adoption::leaveMerge()
{
    setMerging(false);
}

QCoro::Task<> Adoption::show(SkillDetail skill, QString confirmation)
{
    m_selected.show(skill);
    co_await m_library.read();
    m_operations.confirm(confirmation);
}

void Adoption::setMerging(bool isMerging)
{
    if (std::exchange(m_isMerging, isMerging) != isMerging)
        Q_EMIT isMergingChanged();
}

std::optional<qint64> Adoption::revision(const QUuid &id) const
{
    if (m_selected.shows(id))
        return m_selected.detail()->manifest.revision;
    const std::optional<SkillSummary> skill = m_library.skill(id);
    return skill ? std::optional(skill->revision) : std::nullopt;
}

} // namespace vornel

#include "Library.h"

#include <QCoro/QCoroFuture>
#include <QScopeGuard>

#include <algorithm>
#include <utility>

namespace vornel {

Library::Library(std::shared_ptr<WindowServicing> service, Operations &operations)
    : m_service(std::move(service)), m_operations(operations), m_checks(*m_service)
{}

QList<SkillSummary> Library::skills(Destination destination) const
{
    if (!m_overview)
        return {};
    switch (destination) {
    case Destination::needsAttention:
        return LibraryQuery::needsAttention(*m_overview);
    case Destination::trash:
        return m_overview->trashedSkills;
    case Destination::library:
        break;
    }
    return m_overview->skills;
}

std::optional<SkillSummary> Library::skill(const QUuid &id) const
{
    if (!m_overview)
        return std::nullopt;
    const auto found = std::ranges::find(m_overview->skills, id, &SkillSummary::id);
    return found == m_overview->skills.end() ? std::nullopt : std::optional(*found);
}

SkillCategory Library::category(const QString &id) const
{
    return LibraryQuery::category(m_overview ? m_overview->categories : SkillCategory::defaults(), id);
}

void Library::show(const WorkspaceOverview &overview)
{
    setCurrent(true);
    if (m_overview != overview) {
        m_overview = overview;
        m_index = LibraryIndex(overview.skills, overview.categories);
        Q_EMIT overviewChanged();
    }
    m_wrongCopies.follow(overview.skills, *m_service);
    m_handEdits.follow(LibraryQuery::needsAttention(overview), *m_service);
    m_checks.follow(overview.skills);
    Q_EMIT wasRead();
}

QCoro::Task<> Library::read()
{
    ++m_readings;
    const auto end = qScopeGuard([this] { --m_readings; });
    const quint64 number = ++m_asked;
    try {
        const WorkspaceOverview overview = co_await m_service->reload();
        if (isNews(number))
            show(overview);
    } catch (const std::exception &) {
        if (isNews(number))
            setCurrent(false);
        throw;
    }
}

/// Whether this reading's answer comes before those of the later ones.
bool Library::isNews(quint64 number)
{
    if (number < m_answered)
        return false;
    m_answered = number;
    return true;
}

QCoro::Task<> Library::readQuietly()
{
    const Operations::Running running(m_operations);
    try {
        co_await read();
    } catch (const std::exception &) {
        co_return;
    }
}

void Library::setCurrent(bool isCurrent)
{
    if (std::exchange(m_isCurrent, isCurrent) != isCurrent)
        Q_EMIT isCurrentChanged();
}

} // namespace vornel

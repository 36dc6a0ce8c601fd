#include "TrashList.h"

#include <VORNELCore/Library/Wording.h>

#include <QCoro/QCoroFuture>

#include <chrono>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace vornel {

TrashList::TrashList(QObject *parent) : SkillList(Destination::trash, parent)
{
    startTimer(1min); // for the ages
}

void TrashList::setSelection(SkillSelection *selection)
{
    m_selection = selection;
    Q_EMIT selectionChanged();
    connect(m_selection, &SkillSelection::changed, this, &TrashList::refresh);
    refresh();
}

void TrashList::timerEvent(QTimerEvent * /*event*/)
{
    refresh();
}

void TrashList::complete(SkillEntry &entry) const
{
    entry.line = entry.skill.summary.isEmpty() ? entry.skill.slug : entry.skill.summary;
    entry.isSelected = m_selection != nullptr && m_selection->contains(entry.id);
    if (const auto date = m_dates.constFind(entry.id); date != m_dates.cend())
        entry.date = u"Mise à la corbeille "_s + Wording::moment(*date, QDateTime::currentDateTimeUtc());
}

void TrashList::renew()
{
    readDates(this);
}

QCoro::Task<> TrashList::readDates(QPointer<TrashList> self)
{
    QHash<QUuid, QDateTime> dates;
    try {
        dates = co_await self->model()->trashInspector().trashDates();
    } catch (const std::exception &) {
        dates.clear(); // the rows do without
    }
    if (self.isNull())
        co_return;
    self->m_dates = dates;
    self->refresh();
}

} // namespace vornel

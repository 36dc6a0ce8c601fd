#include "TrashList.h"

#include <VORNELCore/Library/Wording.h>

#include <chrono>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace vornel {

TrashList::TrashList(QObject *parent)
    : SkillList(Destination::trash, parent), m_looking(this, [this](const Answer<Dates> &answer) {
          m_dates = answer.value.value_or(Dates()); // without which the rows do
          refresh();
      })
{
    startTimer(1min); // as the ages that are shown change
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
    m_looking.ask([this] { return answerOf(model()->trashInspector().trashDates()); });
}

} // namespace vornel

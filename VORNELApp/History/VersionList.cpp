#include "VersionList.h"

#include <VORNELCore/Library/Wording.h>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace vornel {

VersionList::VersionList(QObject *parent)
    : QObject(parent), m_looking(this, [this](const Answer<Entries> &answer) { show(answer); })
{}

void VersionList::componentComplete()
{
    connect(m_model, &AppModel::overviewRead, this, &VersionList::look);
    look();
}

void VersionList::setSkillID(const QUuid &id)
{
    if (std::exchange(m_skillID, id) == id)
        return;
    m_looking.forget();
    show({.value = Entries()});
    m_explanation.clear();
    Q_EMIT skillIDChanged();
    look();
}

void VersionList::setChosen(const QString &entry)
{
    if (std::exchange(m_chosen, entry) == entry)
        return;
    Q_EMIT chosenChanged();
    Q_EMIT shown();
}

QString VersionList::chosenTitle() const
{
    const int row = rowOf(m_chosen);
    return row < 0 ? QString()
                   : Wording::version(m_rows.records().at(row).version, QDateTime::currentDateTimeUtc());
}

bool VersionList::isChosenCurrent() const
{
    return m_rows.records().value(rowOf(m_chosen)).version.isCurrent;
}

bool VersionList::isChosenEqual() const
{
    const auto current =
        std::ranges::find_if(m_rows.records(), [](const VersionRow &row) { return row.version.isCurrent; });
    return current != m_rows.records().end() &&
           m_rows.records().value(rowOf(m_chosen)).version.digest == current->version.digest;
}

int VersionList::rowOf(const QString &entry) const
{
    const auto found = std::ranges::find(m_rows.records(), entry, &VersionRow::id);
    return found == m_rows.records().end() ? -1 : static_cast<int>(found - m_rows.records().begin());
}

void VersionList::look()
{
    if (m_model == nullptr || m_skillID.isNull())
        return;
    m_looking.ask([this] { return answerOf(m_model->histories().history(m_skillID)); });
}

/// What can't be read now may be read later: until then, what was known stays.
void VersionList::show(const Answer<Entries> &answer)
{
    QList<VersionRow> rows;
    for (const HistoryEntry &version : answer.value.value_or(Entries()))
        rows.append({version.entry, version});
    const QString explanation =
        answer.value && rows.isEmpty() ? u"Aucune version n’est gardée."_s : answer.outcome.message;
    const bool isOther = answer.value && rows != m_rows.records();
    if (isOther)
        m_rows.setRecords(rows);
    if (rowOf(m_chosen) < 0)
        setChosen({});
    if (std::exchange(m_explanation, explanation) != explanation || isOther)
        Q_EMIT shown();
}

QVariant VersionRows::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const HistoryEntry &version = m_records.at(index.row()).version;
    const QDateTime now = QDateTime::currentDateTimeUtc();
    switch (role) {
    case EntryRole:
        return version.entry;
    case DayRole:
        return Wording::day(version.date, now);
    case TimeRole:
        return Wording::time(version.date);
    case TitleRole:
        return Wording::versionOrigin(version);
    case DescriptionRole:
        return Wording::version(version, now);
    case IsReplacedRole:
        return version.kind == HistoryKind::replaced;
    case IsCurrentRole:
        return version.isCurrent;
    default:
        return {};
    }
}

QHash<int, QByteArray> VersionRows::roleNames() const
{
    return {{EntryRole, "entry"},
            {DayRole, "day"},
            {TimeRole, "time"},
            {TitleRole, "title"},
            {DescriptionRole, "description"},
            {IsReplacedRole, "isReplaced"},
            {IsCurrentRole, "isCurrent"}};
}

} // namespace vornel

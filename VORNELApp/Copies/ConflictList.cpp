#include "ConflictList.h"

#include <VORNELCore/Records/ImportModels.h>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace vornel {

namespace {

QString withoutLineEnd(QStringView line)
{
    return (line.endsWith(u'\r') ? line.chopped(1) : line).toString();
}

qsizetype countOfLine(const QString &line, QStringView text)
{
    const auto lines = text.split(u'\n');
    return std::ranges::count(lines, line, withoutLineEnd);
}

/// Whether marks of a conflict are left. The line between both versions may also underline a title: there
/// are as many of these lines as the first text has beyond its conflicts.
bool hasMarks(QStringView text, QStringView markedText)
{
    const QString begin = u"<<<<<<< "_s + assistantName(TargetKind::claude);
    const QString middle = u"======="_s;
    const QString end = u">>>>>>> "_s + assistantName(TargetKind::codex);
    const qsizetype titles = countOfLine(middle, markedText) - countOfLine(begin, markedText);
    return countOfLine(begin, text) > 0 || countOfLine(end, text) > 0 || countOfLine(middle, text) > titles;
}

} // namespace

bool ConflictList::Row::isSettled() const
{
    return choice == Text ? !hasMarks(text, *conflict.markedText) : choice != Open;
}

QString ConflictList::Row::stateText() const
{
    switch (choice) {
    case Claude:
        return assistantName(TargetKind::claude);
    case Codex:
        return assistantName(TargetKind::codex);
    case Text:
        return isSettled() ? u"texte"_s : u"en cours"_s;
    case Open:
        break;
    }
    return u"à régler"_s;
}

void ConflictList::begin(const QList<MergeConflict> &conflicts)
{
    const QList<Row> known = m_rows + m_decidedBefore;
    QList<Row> rows;
    for (const MergeConflict &conflict : conflicts) {
        const auto former = std::ranges::find(known, conflict, &Row::conflict);
        rows.append(former == known.end() ? Row{conflict, Open, conflict.markedText.value_or(QString())}
                                          : *former);
    }
    m_decidedBefore = known;
    m_decidedBefore.removeIf([](const Row &row) { return row.choice == Open; });
    show(rows);
}

void ConflictList::add(const QList<MergeConflict> &conflicts)
{
    QList<Row> rows = m_rows;
    for (const MergeConflict &conflict : conflicts) {
        rows.removeIf([&conflict](const Row &row) {
            return row.conflict.relativePath == conflict.relativePath && row.conflict != conflict;
        });
        if (std::ranges::find(rows, conflict, &Row::conflict) == rows.end())
            rows.append({conflict, Open, conflict.markedText.value_or(QString())});
    }
    std::ranges::sort(rows, {}, [](const Row &row) { return row.conflict.relativePath; });
    show(rows);
}

void ConflictList::show(QList<Row> rows)
{
    beginResetModel();
    m_rows = std::move(rows);
    endResetModel();
    Q_EMIT changed();
}

int ConflictList::openCount() const
{
    return static_cast<int>(m_rows.size() - std::ranges::count_if(m_rows, &Row::isSettled));
}

QList<MergeSettlement> ConflictList::settlements() const
{
    QList<MergeSettlement> settlements;
    for (const Row &row : m_rows) {
        MergeSettlement settlement{row.conflict.relativePath, row.conflict.basis, row.text};
        if (row.choice == Claude || row.choice == Codex)
            settlement.content = row.choice == Claude ? TargetKind::claude : TargetKind::codex;
        if (row.isSettled())
            settlements.append(settlement);
    }
    return settlements;
}

void ConflictList::choose(int row, Choice choice)
{
    m_rows[row].choice = choice;
    refresh(row);
}

QString ConflictList::text(int row) const
{
    return row < 0 || row >= m_rows.size() ? QString() : m_rows.at(row).text;
}

void ConflictList::setText(int row, const QString &text)
{
    m_rows[row].text = text;
    refresh(row);
}

void ConflictList::refresh(int row)
{
    Q_EMIT dataChanged(index(row), index(row));
    Q_EMIT changed();
}

int ConflictList::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : count();
}

QVariant ConflictList::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Row &row = m_rows.at(index.row());
    switch (role) {
    case PathRole:
        return row.conflict.relativePath;
    case ChoiceRole:
        return row.choice;
    case HasTextRole:
        return row.conflict.markedText.has_value();
    case IsSettledRole:
        return row.isSettled();
    case StateTextRole:
        return row.stateText();
    default:
        return {};
    }
}

QHash<int, QByteArray> ConflictList::roleNames() const
{
    return {{PathRole, "path"},
            {ChoiceRole, "choice"},
            {HasTextRole, "hasText"},
            {IsSettledRole, "isSettled"},
            {StateTextRole, "stateText"}};
}

} // namespace vornel

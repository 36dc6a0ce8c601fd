#include "DifferentFileList.h"

#include "FileChangeText.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vornel {

void DifferentFileList::setInspections(const QList<CopyInspection> &inspections)
{
    QList<Row> rows;
    for (const CopyInspection &copy : inspections) {
        const QStringList chosen = this->chosen(copy.target);
        for (const FileDifference &difference : copy.differences)
            rows.append({copy.target, difference, copy.assistant(),
                         wordingOf(difference.change) + u", "_s + copy.assistant(), copy.isAdoptable(),
                         copy.isAdoptable() && chosen.contains(difference.relativePath)});
    }
    setRows(rows);
}

void DifferentFileList::setComparison(const TargetComparison &comparison)
{
    QList<Row> rows;
    for (const FileDifference &difference : comparison.differences) {
        const bool isOfBoth = difference.change == FileChange::changed;
        const bool isOfCodex = difference.change == FileChange::added;
        const ComparedFolder &folder = isOfCodex ? comparison.codex : comparison.claude;
        rows.append({folder.target, difference, isOfBoth ? QString() : folder.assistant(),
                     isOfBoth ? u"différent"_s : u"seulement chez "_s + folder.assistant()});
    }
    setRows(rows);
}

void DifferentFileList::setDifferences(const QList<FileDifference> &differences)
{
    QList<Row> rows;
    for (const FileDifference &difference : differences)
        rows.append({TargetKind::claude, difference, {}, wordingOf(difference.change)});
    setRows(rows);
}

void DifferentFileList::setRows(const QList<Row> &rows)
{
    beginResetModel();
    m_rows = rows;
    endResetModel();
    Q_EMIT chosenChanged();
}

void DifferentFileList::toggle(int row)
{
    if (!m_rows.value(row).isAdoptable)
        return;
    m_rows[row].isChosen = !m_rows.at(row).isChosen;
    Q_EMIT dataChanged(index(row), index(row));
    Q_EMIT chosenChanged();
}

int DifferentFileList::chosenCount() const
{
    return static_cast<int>(std::ranges::count_if(m_rows, &Row::isChosen));
}

QStringList DifferentFileList::chosen(TargetKind target) const
{
    QStringList paths;
    for (const Row &row : m_rows) {
        if (row.target == target && row.isChosen)
            paths.append(row.difference.relativePath);
    }
    return paths;
}

int DifferentFileList::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant DifferentFileList::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Row &row = m_rows.at(index.row());
    switch (role) {
    case TargetRole:
        return QVariant::fromValue(row.target);
    case AssistantRole:
        return row.assistant;
    case PathRole:
        return row.difference.relativePath;
    case SymbolRole:
        return symbolOf(row.difference.change);
    case DescriptionRole:
        return row.description;
    case IsAdoptableRole:
        return row.isAdoptable;
    case IsChosenRole:
        return row.isChosen;
    default:
        return {};
    }
}

QHash<int, QByteArray> DifferentFileList::roleNames() const
{
    return {{TargetRole, "target"},    {AssistantRole, "assistant"},     {PathRole, "path"},
            {SymbolRole, "symbol"},    {DescriptionRole, "description"}, {IsAdoptableRole, "isAdoptable"},
            {IsChosenRole, "isChosen"}};
}

} // namespace vornel

#include "VersionFiles.h"

#include <VORNELApp/Copies/FileChangeText.h>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace vornel {

VersionFiles::VersionFiles(QObject *parent)
    : QAbstractListModel(parent),
      m_reading(this, [this](const Answer<HistoryComparison> &answer) { show(answer); })
{}

void VersionFiles::compare(const QUuid &skillID, const QString &entry, const QString &former)
{
    const Comparison wanted{skillID, entry, former};
    if (std::exchange(m_comparison, wanted) != wanted) {
        m_explanation.clear();
        setRows({});
    }
    if (entry.isEmpty())
        m_reading.forget();
    else
        m_reading.ask([this] { return answerOf(read()); });
}

QFuture<HistoryComparison> VersionFiles::read() const
{
    const auto &[id, entry, former] = m_comparison;
    return m_model->histories().compareVersion(id, entry,
                                               former.isEmpty() ? std::nullopt : std::optional(former));
}

void VersionFiles::show(const Answer<HistoryComparison> &answer)
{
    m_explanation = answer.outcome.message;
    const QList<Row> rows = rowsOf(answer.value.value_or(HistoryComparison()));
    if (rows != m_rows)
        setRows(rows);
    Q_EMIT shown();
}

/// The version before stands on the old side, what there is now on the new one.
QList<VersionFiles::Row> VersionFiles::rowsOf(HistoryComparison comparison) const
{
    const bool isSinceFormer = !m_comparison.former.isEmpty();
    QList<Row> rows;
    for (const auto &[path, change] : std::as_const(comparison.differences)) {
        rows.append({path, isSinceFormer ? reversed(change) : change, change != FileChange::added});
        comparison.files.removeOne(path);
    }
    for (const QString &path : std::as_const(comparison.files))
        rows.append({.path = path});
    return rows;
}

void VersionFiles::setRows(const QList<Row> &rows)
{
    beginResetModel();
    m_rows = rows;
    endResetModel();
}

int VersionFiles::rowOf(const QString &path) const
{
    const auto found = std::ranges::find(m_rows, path, &Row::path);
    return found == m_rows.end() ? -1 : static_cast<int>(found - m_rows.begin());
}

int VersionFiles::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant VersionFiles::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Row &row = m_rows.at(index.row());
    switch (role) {
    case PathRole:
        return row.path;
    case SymbolRole:
        return row.change ? symbolOf(*row.change) : QString();
    case DescriptionRole:
        return row.change ? wordingOf(*row.change) : u"identique"_s;
    case IsInVersionRole:
        return row.isInVersion;
    default:
        return {};
    }
}

QHash<int, QByteArray> VersionFiles::roleNames() const
{
    return {{PathRole, "path"},
            {SymbolRole, "symbol"},
            {DescriptionRole, "description"},
            {IsInVersionRole, "isInVersion"}};
}

} // namespace vornel

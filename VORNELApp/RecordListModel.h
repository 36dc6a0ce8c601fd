#pragma once

#include <QAbstractListModel>

#include <algorithm>
#include <utility>

namespace vornel {

/// A list of records for a view. Setting it anew tells the view only what changed, so that the rows that
/// stay keep their place, their focus and their state. `T` has an `id`.
template <typename T>
class RecordListModel : public QAbstractListModel
{
public:
    using QAbstractListModel::QAbstractListModel;

    int rowCount(const QModelIndex &parent = {}) const override
    {
        return parent.isValid() ? 0 : static_cast<int>(m_records.size());
    }

    QVariant data(const QModelIndex &index, int /*role*/) const override
    {
        return checkIndex(index, CheckIndexOption::IndexIsValid)
                   ? QVariant::fromValue(m_records.at(index.row()))
                   : QVariant();
    }

    QHash<int, QByteArray> roleNames() const override { return {{Qt::UserRole, "record"}}; }

    const QList<T> &records() const { return m_records; }

    void setRecords(const QList<T> &records)
    {
        removeMissing(records);
        for (qsizetype row = 0; row < records.size(); ++row)
            settle(static_cast<int>(row), records.at(row));
    }

private:
    void removeMissing(const QList<T> &records)
    {
        QSet<QUuid> kept;
        for (const T &record : records)
            kept.insert(record.id);
        for (int row = rowCount() - 1; row >= 0; --row) {
            if (kept.contains(m_records.at(row).id))
                continue;
            beginRemoveRows({}, row, row);
            m_records.removeAt(row);
            endRemoveRows();
        }
    }

    /// Puts `record` at `row`; the rows above are settled already.
    void settle(int row, const T &record)
    {
        const auto found = std::find_if(m_records.cbegin() + row, m_records.cend(),
                                        [&record](const T &other) { return other.id == record.id; });
        const int from = static_cast<int>(found - m_records.cbegin());
        if (found == m_records.cend()) {
            beginInsertRows({}, row, row);
            m_records.insert(row, record);
            endInsertRows();
        } else if (from != row) {
            beginMoveRows({}, from, from, {}, row);
            m_records.move(from, row);
            endMoveRows();
        }
        if (std::exchange(m_records[row], record) != record)
            Q_EMIT dataChanged(index(row), index(row));
    }

    QList<T> m_records;
};

} // namespace vornel

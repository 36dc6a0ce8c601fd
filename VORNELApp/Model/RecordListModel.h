#pragma once

#include <QAbstractListModel>
#include <QSet>
#include <QUuid>

#include <algorithm>
#include <utility>

namespace vornel {

/// A list of records for a view. Setting it anew tells the view only what changed, so that the rows that
/// stay keep their place, their focus and their state; where nearly everything changed, the view begins
/// anew, which is quicker. `T` has an `id`, unlike that of every other record.
template <typename T>
class RecordListModel : public QAbstractListModel
{
public:
    using QAbstractListModel::QAbstractListModel;

    int rowCount(const QModelIndex &parent = {}) const override
    {
        return parent.isValid() ? 0 : static_cast<int>(m_records.size());
    }

    QVariant data(const QModelIndex &index, int role) const override
    {
        return role == recordRole && checkIndex(index, CheckIndexOption::IndexIsValid)
                   ? QVariant::fromValue(m_records.at(index.row()))
                   : QVariant();
    }

    QHash<int, QByteArray> roleNames() const override { return {{recordRole, "record"}}; }

    const QList<T> &records() const { return m_records; }

    void setRecords(const QList<T> &records)
    {
        if (changedRows(records) > mostRowsToldSingly) {
            beginResetModel();
            m_records = records;
            endResetModel();
            return;
        }
        removeMissing(records);
        for (qsizetype row = 0; row < records.size(); ++row)
            settle(static_cast<int>(row), records.at(row));
    }

private:
    static constexpr int recordRole = Qt::UserRole;
    static constexpr qsizetype mostRowsToldSingly = 50;

    static QSet<QUuid> identifiers(const QList<T> &records)
    {
        QSet<QUuid> ids;
        ids.reserve(records.size());
        for (const T &record : records)
            ids.insert(record.id);
        return ids;
    }

    /// The identifiers of the records that are also among `ids`, in their order.
    static QList<QUuid> shared(const QList<T> &records, const QSet<QUuid> &ids)
    {
        QList<QUuid> kept;
        for (const T &record : records) {
            if (ids.contains(record.id))
                kept.append(record.id);
        }
        return kept;
    }

    /// How many rows go, come or stand elsewhere among those that stay.
    qsizetype changedRows(const QList<T> &records) const
    {
        const QList<QUuid> before = shared(m_records, identifiers(records));
        const QList<QUuid> after = shared(records, identifiers(m_records));
        qsizetype moved = 0;
        for (qsizetype row = 0; row < before.size(); ++row)
            moved += before.at(row) == after.at(row) ? 0 : 1;
        return m_records.size() + records.size() - 2 * after.size() + moved;
    }

    void removeMissing(const QList<T> &records)
    {
        const QSet<QUuid> kept = identifiers(records);
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

#pragma once

#include <QAbstractListModel>

namespace vornel {

/// A list of records of which a row is a place, whatever stands there: setting it anew changes the rows
/// whose record differs, and adds or removes rows at the end only. A view keeps its delegates.
template <typename T>
class SlotListModel : public QAbstractListModel
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
        resize(records);
        for (int row = 0; row < rowCount(); ++row) {
            if (m_records.at(row) == records.at(row))
                continue;
            m_records[row] = records.at(row);
            Q_EMIT dataChanged(index(row), index(row));
        }
    }

private:
    static constexpr int recordRole = Qt::UserRole;

    void resize(const QList<T> &records)
    {
        const int before = rowCount();
        const int after = static_cast<int>(records.size());
        if (after > before) {
            beginInsertRows({}, before, after - 1);
            m_records.append(records.sliced(before));
            endInsertRows();
        } else if (after < before) {
            beginRemoveRows({}, after, before - 1);
            m_records.resize(after);
            endRemoveRows();
        }
    }

    QList<T> m_records;
};

} // namespace vornel

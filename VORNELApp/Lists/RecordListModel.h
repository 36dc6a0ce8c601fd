#pragma once

#include <QAbstractListModel>

namespace vornel {

/// A list of records that a view shows, each in the role "record". How the rows follow when the records are
/// set anew is the matter of `KeyedListModel` and `FixedRowListModel`.
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
        return role == recordRole &&
                       this->checkIndex(index, QAbstractItemModel::CheckIndexOption::IndexIsValid)
                   ? QVariant::fromValue(m_records.at(index.row()))
                   : QVariant();
    }

    QHash<int, QByteArray> roleNames() const override { return {{recordRole, "record"}}; }

    const QList<T> &records() const { return m_records; }

protected:
    /// Puts a record into a row that exists, and tells the view if it differs from the one before.
    void setRecord(int row, const T &record)
    {
        if (m_records.at(row) == record)
            return;
        m_records[row] = record;
        Q_EMIT dataChanged(index(row), index(row));
    }

    QList<T> m_records;

private:
    static constexpr int recordRole = Qt::UserRole;
};

} // namespace vornel

#pragma once

#include "RecordListModel.h"

#include <QSet>

#include <algorithm>

namespace vornel {

/// A list in which each row belongs to one record, told apart from the others by its `id`. Setting it anew
/// tells the view only what changed, so that the rows that stay keep their place, their focus and their
/// state; where nearly everything changed, the view begins anew, which is quicker.
template <typename T>
class KeyedListModel : public RecordListModel<T>
{
public:
    using RecordListModel<T>::RecordListModel;

    void setRecords(const QList<T> &records)
    {
        if (changedRows(records) > mostRowsToldSingly) {
            this->beginResetModel();
            this->m_records = records;
            this->endResetModel();
            return;
        }
        removeMissing(records);
        for (qsizetype row = 0; row < records.size(); ++row)
            place(static_cast<int>(row), records.at(row));
    }

private:
    using Id = decltype(T::id);

    static constexpr qsizetype mostRowsToldSingly = 50;

    static QSet<Id> identifiers(const QList<T> &records)
    {
        QSet<Id> ids;
        ids.reserve(records.size());
        for (const T &record : records)
            ids.insert(record.id);
        return ids;
    }

    /// The identifiers of the records that are also among `ids`, in their order.
    static QList<Id> shared(const QList<T> &records, const QSet<Id> &ids)
    {
        QList<Id> kept;
        for (const T &record : records) {
            if (ids.contains(record.id))
                kept.append(record.id);
        }
        return kept;
    }

    /// How many rows go, come or stand elsewhere among those that stay.
    qsizetype changedRows(const QList<T> &records) const
    {
        const QList<Id> before = shared(this->m_records, identifiers(records));
        const QList<Id> after = shared(records, identifiers(this->m_records));
        qsizetype moved = 0;
        for (qsizetype row = 0; row < before.size(); ++row)
            moved += before.at(row) == after.at(row) ? 0 : 1;
        return this->m_records.size() + records.size() - 2 * after.size() + moved;
    }

    void removeMissing(const QList<T> &records)
    {
        const QSet<Id> kept = identifiers(records);
        for (int row = this->rowCount() - 1; row >= 0; --row) {
            if (kept.contains(this->m_records.at(row).id))
                continue;
            this->beginRemoveRows({}, row, row);
            this->m_records.removeAt(row);
            this->endRemoveRows();
        }
    }

    /// Puts `record` into `row`; the rows above are right already.
    void place(int row, const T &record)
    {
        const auto found = std::find_if(this->m_records.cbegin() + row, this->m_records.cend(),
                                        [&record](const T &other) { return other.id == record.id; });
        const int from = static_cast<int>(found - this->m_records.cbegin());
        if (found == this->m_records.cend()) {
            this->beginInsertRows({}, row, row);
            this->m_records.insert(row, record);
            this->endInsertRows();
        } else if (from != row) {
            this->beginMoveRows({}, from, from, {}, row);
            this->m_records.move(from, row);
            this->endMoveRows();
        }
        this->setRecord(row, record);
    }
};

} // namespace vornel

#pragma once

#include "RecordListModel.h"

namespace vornel {

/// A list whose rows stay where they are while what they show changes: setting it anew changes the rows whose
/// record differs, and adds or removes rows at the end only. A view keeps its delegates.
template <typename T>
class FixedRowListModel : public RecordListModel<T>
{
public:
    using RecordListModel<T>::RecordListModel;

    void setRecords(const QList<T> &records)
    {
        resize(records);
        for (int row = 0; row < this->rowCount(); ++row)
            this->setRecord(row, records.at(row));
    }

private:
    void resize(const QList<T> &records)
    {
        const int before = this->rowCount();
        const int after = static_cast<int>(records.size());
        if (after > before) {
            this->beginInsertRows({}, before, after - 1);
            this->m_records.append(records.sliced(before));
            this->endInsertRows();
        } else if (after < before) {
            this->beginRemoveRows({}, after, before - 1);
            this->m_records.resize(after);
            this->endRemoveRows();
        }
    }
};

} // namespace vornel

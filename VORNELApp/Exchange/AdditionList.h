#pragma once

#include <VORNELApp/Lists/RecordListModel.h>
#include <VORNELCore/Records/ExchangeRecords.h>

#include <QtQml/qqmlregistration.h>

namespace vornel {

/// The skills to add of which the library has other contents, with what the user has decided.
class AdditionList : public RecordListModel<SkillAddition>
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("belongs to the addition")

public:
    using RecordListModel::RecordListModel;

    /// Lists what a review has found. Where neither content has changed since the last one, the decision
    /// stays.
    void begin(QList<SkillAddition> differing);

    void choose(int row, AdditionChoice choice);

    int undecidedCount() const;
};

} // namespace vornel

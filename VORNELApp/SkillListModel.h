#pragma once

#include "AppModel.h"
#include "RecordListModel.h"

namespace vornel {

/// The skills that need attention, or those in the trash, kept in step with the application model.
class SkillListModel : public RecordListModel<SkillSummary>
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(vornel::AppModel *model MEMBER m_model NOTIFY modelChanged REQUIRED)
    Q_PROPERTY(
        vornel::AppStates::Destination destination MEMBER m_destination NOTIFY destinationChanged REQUIRED)

public:
    explicit SkillListModel(QObject *parent = nullptr);

Q_SIGNALS:
    void modelChanged();
    void destinationChanged();

private:
    void follow();
    void refresh();
    QList<SkillSummary> skills() const;

    AppModel *m_model = nullptr;
    Destination m_destination = Destination::needsAttention;
};

} // namespace vornel

#pragma once

#include <VORNELApp/Lists/KeyedListModel.h>
#include <VORNELApp/Model/AppModel.h>

namespace vornel {

/// The collisions of the pending import, kept in step with the application model.
class CollisionListModel : public KeyedListModel<ImportCollision>
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(vornel::AppModel *model MEMBER m_model NOTIFY modelChanged REQUIRED)

public:
    explicit CollisionListModel(QObject *parent = nullptr);

Q_SIGNALS:
    void modelChanged();

private:
    void follow();
    void refresh();

    AppModel *m_model = nullptr;
};

} // namespace vornel

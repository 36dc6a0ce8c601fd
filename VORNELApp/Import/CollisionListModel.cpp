#include "CollisionListModel.h"

namespace vornel {

CollisionListModel::CollisionListModel(QObject *parent) : KeyedListModel(parent)
{
    connect(this, &CollisionListModel::modelChanged, this, &CollisionListModel::follow);
}

void CollisionListModel::follow()
{
    connect(m_model, &AppModel::importPlanChanged, this, &CollisionListModel::refresh);
    refresh();
}

void CollisionListModel::refresh()
{
    const auto plan = m_model->importPlan();
    setRecords(plan ? plan->collisions : QList<ImportCollision>());
}

} // namespace vornel

#include "SkillListModel.h"

namespace vornel {

SkillListModel::SkillListModel(QObject *parent) : RecordListModel(parent)
{
    connect(this, &SkillListModel::modelChanged, this, &SkillListModel::follow);
    connect(this, &SkillListModel::destinationChanged, this, &SkillListModel::refresh);
}

void SkillListModel::follow()
{
    connect(m_model, &AppModel::overviewChanged, this, &SkillListModel::refresh);
    refresh();
}

void SkillListModel::refresh()
{
    if (m_model != nullptr)
        setRecords(skills());
}

QList<SkillSummary> SkillListModel::skills() const
{
    if (m_destination == Destination::needsAttention)
        return m_model->needsAttention();
    const auto overview = m_model->overview();
    return overview ? overview->trashedSkills : QList<SkillSummary>();
}

} // namespace vornel

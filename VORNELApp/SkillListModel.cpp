#include "SkillListModel.h"

namespace vornel {

SkillListModel::SkillListModel(QObject *parent) : RecordListModel(parent)
{
    connect(this, &SkillListModel::modelChanged, this, &SkillListModel::follow);
    connect(this, &SkillListModel::destinationChanged, this, &SkillListModel::refresh);
}

void SkillListModel::follow()
{
    for (const auto changed : {&AppModel::overviewChanged, &AppModel::searchTextChanged,
                               &AppModel::selectedCategoryChanged, &AppModel::selectedMaturityChanged})
        connect(m_model, changed, this, &SkillListModel::refresh);
    refresh();
}

void SkillListModel::refresh()
{
    if (m_model != nullptr)
        setRecords(skills());
}

QList<SkillSummary> SkillListModel::skills() const
{
    switch (m_destination) {
    case Destination::library:
        return m_model->libraryIndex().orderedFilteredSkills(m_model->filter());
    case Destination::needsAttention:
        return m_model->needsAttention();
    case Destination::trash:
        break;
    }
    const auto overview = m_model->overview();
    return overview ? overview->trashedSkills : QList<SkillSummary>();
}

} // namespace vornel

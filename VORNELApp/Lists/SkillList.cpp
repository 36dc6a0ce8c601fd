#include "SkillList.h"

namespace vornel {

SkillList::SkillList(Destination destination, QObject *parent) : QObject(parent), m_destination(destination)
{}

void SkillList::setModel(AppModel *model)
{
    m_model = model;
    Q_EMIT modelChanged();
    connect(m_model, &AppModel::searchTextChanged, this, [this] {
        refresh();
        Q_EMIT searched();
    });
    connect(m_model->batch(), &SkillBatch::reasonsChanged, this, &SkillList::refresh);
    const auto follow = [this] {
        renew();
        refresh();
    };
    connect(m_model, &AppModel::overviewRead, this, follow);
    follow();
}

void SkillList::refresh()
{
    if (m_model == nullptr)
        return;
    QList<SkillEntry> entries = found();
    for (SkillEntry &entry : entries)
        complete(entry);
    m_totalCount = static_cast<int>(total());
    m_rows.setRecords(entries);
    Q_EMIT countChanged();
}

qsizetype SkillList::total() const
{
    return m_model->skills(m_destination).size();
}

QList<SkillEntry> SkillList::found() const
{
    QList<SkillEntry> entries;
    const QList<SkillSummary> skills = m_model->shownSkills(m_destination);
    for (const SkillSummary &skill : skills) {
        SkillEntry entry;
        entry.id = skill.id;
        entry.skill = skill;
        entry.category = m_model->category(skill.category);
        entry.failure = m_model->batch()->reason(skill.id);
        entries.append(entry);
    }
    return entries;
}

} // namespace vornel

#include "CategoryListModel.h"

#include <VORNELCore/Library/LocaleText.h>
#include <VORNELCore/Library/Wording.h>

using namespace Qt::StringLiterals;

namespace vornel {

QString CategoryEntry::countText() const
{
    return Wording::countedSkills(count);
}

QString CategoryEntry::spokenName() const
{
    return category.name + (count == 1 ? u", 1 compétence"_s : u", %1 compétences"_s.arg(count));
}

CategoryListModel::CategoryListModel(QObject *parent) : FixedRowListModel(parent)
{
    connect(this, &CategoryListModel::modelChanged, this, &CategoryListModel::follow);
    connect(this, &CategoryListModel::beginsWithAllChanged, this, &CategoryListModel::refresh);
}

void CategoryListModel::follow()
{
    connect(m_model, &AppModel::overviewChanged, this, &CategoryListModel::refresh);
    refresh();
}

void CategoryListModel::refresh()
{
    if (m_model == nullptr)
        return;
    const WorkspaceOverview overview = m_model->overview().value_or(WorkspaceOverview());
    QHash<QString, int> counts; // a filter takes categories without regard to case
    for (const SkillSummary &skill : overview.skills)
        ++counts[LocaleText::caseless(skill.category)];
    QList<CategoryEntry> entries;
    if (m_beginsWithAll)
        entries.append({{{}, u"Toutes"_s, {}}, static_cast<int>(overview.skills.size())});
    for (const SkillCategory &category : overview.categories)
        entries.append({category, counts.value(LocaleText::caseless(category.id))});
    setRecords(entries);
}

} // namespace vornel

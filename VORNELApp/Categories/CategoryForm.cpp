#include "CategoryForm.h"

#include <VORNELCore/Library/CategoryRules.h>

using namespace Qt::StringLiterals;

namespace vornel {

/// Another program may take the name, or give skills the category, while the form is filled in.
CategoryForm::CategoryForm(QObject *parent) : EntryForm(parent)
{
    connect(this, &EntryForm::modelChanged, this,
            [this] { connect(model(), &AppModel::overviewChanged, this, &CategoryForm::changed); });
    connect(this, &EntryForm::refusalChanged, this, &CategoryForm::changed);
}

void CategoryForm::setName(const QString &name)
{
    if (!nameProblem().isEmpty())
        forgetRefusal(); // which was that of another name
    m_category.name = name;
    Q_EMIT changed();
}

void CategoryForm::setColorHex(const QString &colorHex)
{
    m_category.colorHex = colorHex;
    Q_EMIT changed();
}

QString CategoryForm::nameProblem() const
{
    if (CategoryRules::isTooLong(m_category.name))
        return u"Le nom dépasse %1 caractères."_s.arg(longestName());
    return isNameTaken() ? CategoryRules::takenMessage() : QString();
}

int CategoryForm::skillCount() const
{
    if (isNew())
        return 0;
    const LibraryQuery::Filter filter{{}, m_original.id, {}};
    return static_cast<int>(model()->libraryIndex().filteredSkills(filter).size());
}

void CategoryForm::edit(const SkillCategory &category)
{
    beginAnew();
    m_original = category;
    m_category = category;
    Q_EMIT changed();
}

void CategoryForm::editNew(const QString &colorHex)
{
    SkillCategory category;
    category.colorHex = colorHex;
    edit(category);
}

void CategoryForm::submit()
{
    if (isNew())
        await(model()->createCategory(name(), colorHex()));
    else
        await(model()->updateCategory(m_original.id, name(), colorHex()));
}

void CategoryForm::remove()
{
    await(model()->deleteCategory(m_original.id));
}

bool CategoryForm::isNameTaken() const
{
    if (isWaiting()) // then it may be this very category's
        return false;
    const auto overview = model() == nullptr ? std::nullopt : model()->overview();
    return overview && CategoryRules::isTaken(m_category.name, overview->categories, m_original.id);
}

} // namespace vornel

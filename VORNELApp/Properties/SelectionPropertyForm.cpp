#include "SelectionPropertyForm.h"

#include <VORNELCore/Library/TagRules.h>
#include <VORNELCore/Library/Wording.h>

using namespace Qt::StringLiterals;

namespace vornel {

SelectionPropertyForm::SelectionPropertyForm(QObject *parent) : EntryForm(parent)
{
    connect(this, &SelectionPropertyForm::changed, this, &EntryForm::forgetRefusal);
}

void SelectionPropertyForm::setCategory(const QString &id)
{
    m_change.category = id.isEmpty() ? std::nullopt : std::optional(id);
    Q_EMIT changed();
}

int SelectionPropertyForm::maturityChoice() const
{
    return m_change.maturity ? static_cast<int>(*m_change.maturity) + 1 : 0;
}

void SelectionPropertyForm::setMaturityChoice(int choice)
{
    m_change.maturity = choice == 0 ? std::nullopt : std::optional(static_cast<Maturity>(choice - 1));
    Q_EMIT changed();
}

QStringList SelectionPropertyForm::maturityTexts()
{
    return QStringList{u"Inchangée"_s} + Wording::maturities();
}

void SelectionPropertyForm::addTags(const QString &tags)
{
    m_typedTag.clear();
    m_change.addedTags = TagRules::normalizedTags(m_change.addedTags + tags.split(u','));
    m_change.removedTags.removeIf([this](const QString &tag) { return m_change.addedTags.contains(tag); });
    Q_EMIT changed();
}

void SelectionPropertyForm::dropTag(const QString &tag)
{
    m_change.addedTags.removeAll(tag);
    Q_EMIT changed();
}

void SelectionPropertyForm::setTypedTag(const QString &tag)
{
    m_typedTag = tag;
    Q_EMIT changed();
}

void SelectionPropertyForm::toggleRemoved(const QString &tag)
{
    if (m_change.removedTags.removeAll(tag) == 0)
        m_change.removedTags.append(tag);
    m_change.addedTags.removeAll(tag);
    Q_EMIT changed();
}

PropertyChange SelectionPropertyForm::change() const
{
    PropertyChange change = m_change;
    if (!m_typedTag.trimmed().isEmpty())
        change.addedTags = TagRules::normalizedTags(change.addedTags + m_typedTag.split(u','));
    return change;
}

void SelectionPropertyForm::begin(const QVariantList &ids)
{
    beginAnew();
    m_ids.clear();
    m_change = {};
    m_typedTag.clear();
    for (const QVariant &id : ids)
        m_ids.append(id.toUuid());
    QStringList tags;
    for (const SkillSummary &skill : model()->skills(Destination::library)) {
        if (m_ids.contains(skill.id))
            tags += skill.tags;
    }
    m_presentTags = TagRules::normalizedTags(tags);
    Q_EMIT changed();
}

void SelectionPropertyForm::submit()
{
    if (isModified() && !model()->isWorking())
        await(model()->setProperties(m_ids, change(), std::nullopt));
}

} // namespace vornel

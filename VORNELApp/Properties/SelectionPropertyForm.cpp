#include "SelectionPropertyForm.h"

#include <VORNELCore/Library/LocaleText.h>
#include <VORNELCore/Library/TagRules.h>
#include <VORNELCore/Library/Wording.h>

using namespace Qt::StringLiterals;

namespace vornel {

namespace {

/// "nom « Ancien » → « Nouveau »", of long texts the beginnings.
QString replacement(const QString &what, const QString &former, const QString &given)
{
    constexpr int most = 160;
    const auto quoted = [](const QString &text) {
        const QString beginning = LocaleText::truncated(text.simplified(), most);
        const QString rest = LocaleText::characterCount(text.simplified()) > most ? u"…"_s : QString();
        return u" «\u00A0"_s + beginning + rest + u"\u00A0»"_s;
    };
    return what + (former.isEmpty() ? QString() : quoted(former) + u" →"_s) + quoted(given);
}

/// "notes : nom « notes » → « Notes de version », description « Rédige… »"; empty where nothing would change.
QString textChange(const SkillSummary &skill, const SkillProperties &given)
{
    QStringList parts;
    if (given.displayName != skill.displayName)
        parts.append(replacement(u"nom"_s, skill.displayName, given.displayName));
    if (given.summary != skill.summary)
        parts.append(replacement(u"description"_s, skill.summary, given.summary));
    return parts.isEmpty() ? QString() : skill.slug + u"\u00A0: "_s + parts.join(u", "_s);
}

} // namespace

SelectionPropertyForm::SelectionPropertyForm(QObject *parent)
    : EntryForm(parent), m_reading(this, [this](const Reviewed &answer) { showTextChanges(answer); })
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

void SelectionPropertyForm::setFromText(bool isFromText)
{
    m_change.isFromText = isFromText;
    Q_EMIT changed();
}

void SelectionPropertyForm::showTextChanges(const Reviewed &answer)
{
    m_textChanges.clear();
    for (const SkillProperties &given : answer.value.value_or(QList<SkillProperties>())) {
        for (const SkillSummary &skill : model()->skills(Destination::library)) {
            if (skill.slug == given.slug)
                m_textChanges.append(textChange(skill, given));
        }
    }
    m_textChanges.removeAll(QString());
    m_textFailure = answer.outcome.message;
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
    m_textChanges.clear();
    m_textFailure.clear();
    m_reading.ask(
        [this] { return answerOf(model()->properties().reviewProperties(m_ids, {.isFromText = true})); });
    Q_EMIT changed();
}

void SelectionPropertyForm::submit()
{
    if (isModified() && !model()->isWorking())
        await(model()->setProperties(m_ids, change(), std::nullopt));
}

} // namespace vornel

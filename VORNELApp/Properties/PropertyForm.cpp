#include "PropertyForm.h"

#include <VORNELApp/Model/SlugRules.h>
#include <VORNELCore/Errors/VORNELWorkspaceError.h>
#include <VORNELCore/Library/TagRules.h>
#include <VORNELCore/Library/Wording.h>

using namespace Qt::StringLiterals;

namespace vornel {

PropertyForm::PropertyForm(QObject *parent)
    : EntryForm(parent), m_reading(this, [this](const Reviewed &answer) { takeReviewed(answer); })
{
    connect(this, &EntryForm::modelChanged, this, &PropertyForm::listen);
    connect(this, &EntryForm::refusalChanged, this, &PropertyForm::changed);
}

/// Another program may take the identifier while the form is filled in.
void PropertyForm::listen()
{
    connect(model(), &AppModel::overviewChanged, this, &PropertyForm::changed);
    connect(model(), &AppModel::selectedSkillChanged, this, &PropertyForm::follow);
    follow();
}

void PropertyForm::follow()
{
    const SkillManifest skill = model()->selectedSkill().value_or(SkillDetail()).manifest;
    const SkillProperties read = SkillProperties::of(skill);
    m_revision = skill.revision;
    if (std::exchange(m_id, skill.id) == skill.id) {
        followAgain(read);
    } else {
        m_read = read;
        reset();
    }
}

void PropertyForm::followAgain(const SkillProperties &read)
{
    takeOver(&SkillProperties::displayName, read, u"nom"_s);
    takeOver(&SkillProperties::summary, read, u"description"_s);
    takeOver(&SkillProperties::tags, read, u"mots-clés"_s);
    takeOver(&SkillProperties::category, read, u"catégorie"_s);
    takeOver(&SkillProperties::maturity, read, u"maturité"_s);
    takeOver(&SkillProperties::slug, read, u"identifiant"_s);
    if (!isModified())
        m_overtaken.clear();
    Q_EMIT changed();
}

template <typename T>
void PropertyForm::takeOver(T SkillProperties::*property, const SkillProperties &read, const QString &name)
{
    T &typed = m_typed.*property;
    const T former = std::exchange(m_read.*property, read.*property);
    if (typed == former)
        typed = read.*property;
    else if (former != read.*property && typed != read.*property && !m_overtaken.contains(name))
        m_overtaken.append(name);
}

void PropertyForm::addTags(const QString &tags)
{
    m_typedTag.clear();
    set(m_typed.tags, TagRules::normalizedTags(m_typed.tags + tags.split(u',')));
}

void PropertyForm::removeTag(const QString &tag)
{
    QStringList others = m_typed.tags;
    others.removeAll(tag);
    set(m_typed.tags, others);
}

QStringList PropertyForm::maturityTexts()
{
    return Wording::maturities();
}

QString PropertyForm::nameProblem() const
{
    return m_typed.displayName.trimmed().isEmpty() ? u"Le nom est requis."_s : QString();
}

QString PropertyForm::slugProblem() const
{
    if (m_typed.slug == m_read.slug)
        return {};
    QString problem = SlugRules::formProblem(m_typed.slug);
    const bool isRefused = refusalCase() == QLatin1StringView(WorkspaceErrorCase::DuplicateSlug::name);
    if (!problem.isEmpty() || !(isRefused || SlugRules::isTaken(*model(), m_typed.slug, m_id)))
        return problem;
    return SlugRules::takenProblem(*model(), m_typed.slug);
}

QString PropertyForm::newSlug() const
{
    return m_typed.slug != m_read.slug && slugProblem().isEmpty() ? m_typed.slug : QString();
}

bool PropertyForm::isOutdated() const
{
    return refusalCase() == QLatin1StringView(WorkspaceErrorCase::RevisionConflict::name);
}

/// As they would be saved, which leaves what wasn't changed as it was read.
SkillProperties PropertyForm::wanted() const
{
    SkillProperties wanted = m_typed;
    if (wanted.displayName != m_read.displayName)
        wanted.displayName = wanted.displayName.trimmed();
    if (!m_typedTag.trimmed().isEmpty())
        wanted.tags = TagRules::normalizedTags(wanted.tags + m_typedTag.split(u','));
    return wanted;
}

void PropertyForm::takeFromText()
{
    m_reading.ask(
        [this] { return answerOf(model()->properties().reviewProperties({m_id}, {.isFromText = true})); });
}

void PropertyForm::takeReviewed(const Reviewed &answer)
{
    if (!answer.value) {
        m_textNote = answer.outcome.message;
        return Q_EMIT changed();
    }
    const SkillProperties &given = answer.value->constFirst();
    if (given == m_read)
        m_textNote = u"L’en-tête du SKILL.md ne dit rien d’autre."_s;
    if (given.displayName != m_read.displayName)
        m_typed.displayName = given.displayName;
    if (given.summary != m_read.summary)
        m_typed.summary = given.summary;
    Q_EMIT changed();
}

void PropertyForm::submit()
{
    if (!isModified() || !isValid() || model()->isWorking())
        return;
    m_typed = wanted();
    m_typedTag.clear();
    await(model()->setProperties({m_id}, PropertyChange::between(m_read, m_typed), m_revision));
    Q_EMIT changed();
}

void PropertyForm::reset()
{
    beginAnew();
    m_typed = m_read;
    m_typedTag.clear();
    m_overtaken.clear();
    m_textNote.clear();
    m_reading.forget();
    Q_EMIT changed();
}

} // namespace vornel

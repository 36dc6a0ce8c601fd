#include "CreateSkillForm.h"

#include <VORNELCore/LocaleText.h>
#include <VORNELCore/NewSkillText.h>
#include <VORNELCore/VORNELWorkspaceError.h>
#include <VORNELCore/Wording.h>
#include <VORNELCore/WorkspaceValidation.h>

using namespace Qt::StringLiterals;

namespace vornel {

namespace {

QStringList splitTags(const QString &text)
{
    QStringList tags;
    const QStringList pieces = text.split(u',');
    for (const QString &piece : pieces) {
        const QString tag = piece.trimmed();
        if (!tag.isEmpty())
            tags.append(tag);
    }
    return tags;
}

} // namespace

void CreateSkillForm::setDisplayName(const QString &name)
{
    m_request.displayName = name;
    if (!m_didEditSlug)
        takeSlug(LocaleText::identifierFromTitle(name));
    Q_EMIT changed();
}

void CreateSkillForm::setSlug(const QString &slug)
{
    m_didEditSlug = true;
    takeSlug(slug);
    Q_EMIT changed();
}

void CreateSkillForm::setSummary(const QString &summary)
{
    m_request.summary = summary;
    Q_EMIT changed();
}

void CreateSkillForm::setTags(const QString &tags)
{
    m_tags = tags;
    Q_EMIT changed();
}

void CreateSkillForm::setCategory(const QString &id)
{
    m_request.category = id;
    Q_EMIT changed();
}

void CreateSkillForm::setMaturity(Maturity maturity)
{
    m_request.maturity = maturity;
    Q_EMIT changed();
}

QStringList CreateSkillForm::maturityTexts()
{
    return Wording::maturities();
}

QString CreateSkillForm::slugProblem() const
{
    constexpr qsizetype longest = WorkspaceValidation::longestSlug;
    return slug().size() > longest ? u"L’identifiant dépasse %1 caractères."_s.arg(longest) : QString();
}

QString CreateSkillForm::validationHint() const
{
    if (!hasName())
        return u"Le nom est requis."_s;
    return hasValidSlug() ? u"Prête à être créée."_s
                          : u"Utilisez uniquement des lettres, chiffres et tirets."_s;
}

bool CreateSkillForm::isModified() const
{
    return m_request != m_empty || !m_tags.isEmpty();
}

bool CreateSkillForm::isSlugTaken() const
{
    return refusalCase() == QLatin1StringView(WorkspaceErrorCase::DuplicateSlug::name);
}

void CreateSkillForm::submit()
{
    CreateSkillRequest request = m_request;
    request.tags = splitTags(m_tags);
    request.skillMD = readableSkillText(request);
    await(model()->createSkill(std::move(request)));
}

void CreateSkillForm::reset()
{
    beginAnew();
    m_empty = CreateSkillRequest();
    m_empty.category = model()->category(u"development"_s).id;
    m_request = m_empty;
    m_tags.clear();
    m_didEditSlug = false;
    Q_EMIT changed();
}

bool CreateSkillForm::hasValidSlug() const
{
    try {
        WorkspaceValidation::validateSlug(m_request.slug);
        return true;
    } catch (const VORNELWorkspaceError &) {
        return false;
    }
}

/// What was refused was another identifier.
void CreateSkillForm::takeSlug(const QString &slug)
{
    if (std::exchange(m_request.slug, slug) != slug && isSlugTaken())
        forgetRefusal();
}

} // namespace vornel

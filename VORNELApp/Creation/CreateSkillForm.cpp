#include "CreateSkillForm.h"

#include <VORNELApp/Model/SlugRules.h>
#include <VORNELCore/Errors/VORNELWorkspaceError.h>
#include <VORNELCore/Library/LocaleText.h>
#include <VORNELCore/Library/NewSkillText.h>
#include <VORNELCore/Library/Wording.h>

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

/// Another program may take the identifier while the form is filled in.
CreateSkillForm::CreateSkillForm(QObject *parent) : EntryForm(parent)
{
    connect(this, &EntryForm::modelChanged, this,
            [this] { connect(model(), &AppModel::overviewChanged, this, &CreateSkillForm::changed); });
    connect(this, &EntryForm::refusalChanged, this, &CreateSkillForm::changed);
}

void CreateSkillForm::setDisplayName(const QString &name)
{
    m_request.displayName = name;
    if (!m_didEditSlug)
        takeSlug(LocaleText::identifierFromTitle(name));
    Q_EMIT changed();
}

void CreateSkillForm::setSlug(const QString &slug)
{
    m_didEditSlug = !slug.isEmpty();
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

bool CreateSkillForm::hasName() const
{
    return !m_request.displayName.trimmed().isEmpty();
}

QString CreateSkillForm::slugProblem() const
{
    if (!hasName() && slug().isEmpty())
        return {};
    QString problem = SlugRules::formProblem(slug());
    if (!problem.isEmpty() || !isSlugTaken())
        return problem;
    return SlugRules::takenProblem(*model(), slug());
}

QString CreateSkillForm::validationHint() const
{
    if (!hasName())
        return u"Le nom est requis."_s;
    return hasValidSlug() ? u"Prête à être créée."_s : SlugRules::formProblem(slug());
}

bool CreateSkillForm::isModified() const
{
    return m_request != m_empty || !m_tags.isEmpty();
}

bool CreateSkillForm::isSlugTaken() const
{
    if (isWaiting()) // then it may be this very skill's
        return false;
    return refusalCase() == QLatin1StringView(WorkspaceErrorCase::DuplicateSlug::name) ||
           (model() != nullptr && SlugRules::isTaken(*model(), slug()));
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
    const QString filter = model()->selectedCategory();
    m_empty.category = model()->category(filter.isEmpty() ? u"development"_s : filter).id;
    m_request = m_empty;
    m_tags.clear();
    m_didEditSlug = false;
    Q_EMIT changed();
}

bool CreateSkillForm::hasValidSlug() const
{
    return SlugRules::formProblem(slug()).isEmpty();
}

/// A former identifier's refusal says nothing of this one.
void CreateSkillForm::takeSlug(const QString &slug)
{
    const bool wasTaken = isSlugTaken();
    if (std::exchange(m_request.slug, slug) != slug && wasTaken)
        forgetRefusal();
}

} // namespace vornel

#include "SlugForm.h"

#include <VORNELCore/Errors/VORNELWorkspaceError.h>
#include <VORNELCore/Errors/WorkspaceValidation.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vornel {

SlugForm::SlugForm(QObject *parent) : EntryForm(parent)
{
    connect(this, &SlugForm::slugChanged, this, &SlugForm::problemChanged);
    connect(this, &EntryForm::refusalChanged, this, &SlugForm::problemChanged);
}

void SlugForm::beginWith(const QString &slug)
{
    beginAnew();
    m_slug = slug;
    Q_EMIT slugChanged();
}

void SlugForm::setSlug(const QString &slug)
{
    if (m_slug == slug)
        return;
    forgetRefusal();
    m_slug = slug;
    Q_EMIT slugChanged();
}

bool SlugForm::isTaken(const QString &slug, Destination destination) const
{
    return std::ranges::any_of(model()->skills(destination), [&slug](const SkillSummary &skill) {
        return skill.slug.compare(slug, Qt::CaseInsensitive) == 0;
    });
}

QString SlugForm::problem() const
{
    if (m_slug.isEmpty() || model() == nullptr)
        return {};
    if (isTaken(m_slug, Destination::library))
        return u"Une compétence de la bibliothèque porte cet identifiant."_s;
    if (isTaken(m_slug, Destination::trash))
        return u"Une compétence de la corbeille porte cet identifiant."_s;
    try {
        WorkspaceValidation::validateSlug(m_slug);
    } catch (const VORNELWorkspaceError &error) {
        return error.errorDescription();
    }
    return refusal();
}

} // namespace vornel

#include "SetAsideForm.h"

#include <VORNELCore/Errors/VORNELWorkspaceError.h>
#include <VORNELCore/Errors/WorkspaceValidation.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vornel {

SetAsideForm::SetAsideForm(QObject *parent) : EntryForm(parent)
{
    connect(this, &SetAsideForm::slugChanged, this, &SetAsideForm::problemChanged);
    connect(this, &EntryForm::refusalChanged, this, &SetAsideForm::problemChanged);
}

void SetAsideForm::begin(const QString &copy, const QString &slug)
{
    beginAnew();
    m_copy = copy;
    m_slug = slug;
    Q_EMIT slugChanged();
}

void SetAsideForm::setSlug(const QString &slug)
{
    if (m_slug == slug)
        return;
    forgetRefusal();
    m_slug = slug;
    Q_EMIT slugChanged();
}

QString SetAsideForm::problem() const
{
    if (m_slug.isEmpty() || model() == nullptr)
        return {};
    const auto hasSlug = [this](const SkillSummary &skill) {
        return skill.slug.compare(m_slug, Qt::CaseInsensitive) == 0;
    };
    if (std::ranges::any_of(model()->skills(Destination::library), hasSlug))
        return u"Une compétence de la bibliothèque porte cet identifiant."_s;
    if (std::ranges::any_of(model()->skills(Destination::trash), hasSlug))
        return u"Une compétence de la corbeille porte cet identifiant."_s;
    try {
        WorkspaceValidation::validateSlug(m_slug);
    } catch (const VORNELWorkspaceError &error) {
        return error.errorDescription();
    }
    return refusal();
}

void SetAsideForm::submit()
{
    await(model()->restoreSetAside(m_copy, m_slug));
}

} // namespace vornel

#include "SlugRules.h"

#include <VORNELCore/Errors/VORNELWorkspaceError.h>
#include <VORNELCore/Errors/WorkspaceValidation.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vornel::SlugRules {

namespace {

bool holds(const QList<SkillSummary> &skills, const QString &slug, const QUuid &owner)
{
    return std::ranges::any_of(skills, [&](const SkillSummary &skill) {
        return skill.id != owner && skill.slug.compare(slug, Qt::CaseInsensitive) == 0;
    });
}

} // namespace

QString formProblem(const QString &slug)
{
    constexpr qsizetype longest = WorkspaceValidation::longestSlug;
    if (slug.size() > longest)
        return u"L’identifiant dépasse %1 caractères."_s.arg(longest);
    try {
        WorkspaceValidation::validateSlug(slug);
        return {};
    } catch (const VORNELWorkspaceError &) {
        return u"Utilisez uniquement des lettres, chiffres et tirets."_s;
    }
}

bool isTaken(const AppModel &model, const QString &slug, const QUuid &owner)
{
    return holds(model.skills(Destination::library), slug, owner) ||
           holds(model.skills(Destination::trash), slug, owner);
}

QString takenProblem(const AppModel &model, const QString &slug)
{
    return holds(model.skills(Destination::trash), slug, {})
               ? u"Une compétence de la corbeille porte déjà cet identifiant."_s
               : u"Une compétence porte déjà cet identifiant."_s;
}

} // namespace vornel::SlugRules

#include "PropertyRules.h"

#include <VORNELCore/Errors/VORNELWorkspaceError.h>
#include <VORNELCore/Errors/WorkspaceValidation.h>
#include <VORNELCore/Library/CategoryRules.h>
#include <VORNELCore/Library/TagRules.h>
#include <VORNELInfrastructure/Categories/CategoryCatalog.h>

using namespace Qt::StringLiterals;

namespace vornel {

SkillProperties validProperties(const Workspace &workspace, SkillProperties properties)
{
    WorkspaceValidation::validateSlug(properties.slug);
    properties.displayName = properties.displayName.trimmed();
    if (properties.displayName.isEmpty())
        throw VORNELWorkspaceError::integrityFailure(u"Le nom du skill est vide."_s);
    properties.category = CategoryRules::normalizedCategory(properties.category);
    readCategoryCatalog(workspace).find(properties.category);
    properties.tags = TagRules::normalizedTags(properties.tags);
    return properties;
}

SkillProperties changedProperties(const Workspace &workspace, SkillProperties properties,
                                  const PropertyChange &change)
{
    properties.slug = change.slug.value_or(properties.slug);
    properties.displayName = change.displayName.value_or(properties.displayName);
    properties.summary = change.summary.value_or(properties.summary);
    properties.category = change.category.value_or(properties.category);
    properties.maturity = change.maturity.value_or(properties.maturity);
    properties.tags = TagRules::normalizedTags(change.tags.value_or(properties.tags));
    for (const QString &tag : TagRules::normalizedTags(change.removedTags))
        properties.tags.removeAll(tag);
    properties.tags += change.addedTags;
    return validProperties(workspace, std::move(properties));
}

} // namespace vornel

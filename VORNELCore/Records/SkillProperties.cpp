#include "SkillProperties.h"

namespace vornel {

SkillProperties SkillProperties::of(const SkillManifest &manifest)
{
    return {.slug = manifest.slug,
            .displayName = manifest.displayName,
            .summary = manifest.summary,
            .category = manifest.category,
            .tags = manifest.tags,
            .maturity = manifest.maturity};
}

void SkillProperties::writeTo(SkillManifest &manifest) const
{
    manifest.slug = slug;
    manifest.displayName = displayName;
    manifest.summary = summary;
    manifest.category = category;
    manifest.tags = tags;
    manifest.maturity = maturity;
}

PropertyChange PropertyChange::to(const SkillProperties &properties)
{
    return {.slug = properties.slug,
            .displayName = properties.displayName,
            .summary = properties.summary,
            .category = properties.category,
            .tags = properties.tags,
            .maturity = properties.maturity};
}

} // namespace vornel

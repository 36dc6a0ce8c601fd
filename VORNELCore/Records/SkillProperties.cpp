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

PropertyChange PropertyChange::between(const SkillProperties &former, const SkillProperties &wanted)
{
    const auto changed = [&](auto SkillProperties::*property) {
        return wanted.*property == former.*property ? std::nullopt : std::optional(wanted.*property);
    };
    return {.slug = changed(&SkillProperties::slug),
            .displayName = changed(&SkillProperties::displayName),
            .summary = changed(&SkillProperties::summary),
            .category = changed(&SkillProperties::category),
            .tags = changed(&SkillProperties::tags),
            .maturity = changed(&SkillProperties::maturity)};
}

} // namespace vornel

#pragma once

#include "WorkspaceModels.h"

#include <optional>

namespace vornel {

/// What is said of a skill beside its text.
struct SkillProperties
{
    QString slug;
    QString displayName;
    QString summary;
    QString category; ///< identifier of a SkillCategory
    QStringList tags;
    Maturity maturity = Maturity::draft;

    static SkillProperties of(const SkillManifest &manifest);
    void writeTo(SkillManifest &manifest) const;

    bool operator==(const SkillProperties &) const = default;
};

/// A change of properties, as the user asks for it. What is absent stays as it is.
struct PropertyChange
{
    std::optional<QString> slug = {};
    std::optional<QString> displayName = {};
    std::optional<QString> summary = {};
    std::optional<QString> category = {};
    std::optional<QStringList> tags = {}; ///< in the place of all others
    QStringList addedTags = {};
    QStringList removedTags = {};
    std::optional<Maturity> maturity = {};
    bool isFromText = false; ///< the name and the summary are those that the head of "SKILL.md" gives

    /// The change that leads to these, and the one that says no more than what differs from `former`.
    static PropertyChange to(const SkillProperties &properties);
    static PropertyChange between(const SkillProperties &former, const SkillProperties &wanted);

    bool operator==(const PropertyChange &) const = default;
};

} // namespace vornel

#pragma once

#include "WorkspaceModels.h"

#include <QString>

#include <optional>

/// Which skills of a library are shown, and in what order. Pure functions of what they are given.
namespace vornel::LibraryQuery {

/// The filters of the library. An empty search and absent choices let everything pass.
struct Filter
{
    QString searchText;
    std::optional<QString> category; ///< identifier of a category, compared without regard to case
    std::optional<Maturity> maturity;
};

/// The skills that pass all three tests of `filter`, in the order given. The search text, trimmed, is looked
/// for in the name, slug, summary, category and tags, without regard to case or diacritics.
QList<SkillSummary> filteredSkills(const QList<SkillSummary> &skills, const Filter &filter);

/// The skills of `overview` that pass `filter`, in the library's order: by the category's place in the
/// catalog (unless the filter names one category), then by display name, then by slug.
QList<SkillSummary> orderedFilteredSkills(const WorkspaceOverview &overview, const Filter &filter);

/// The skills of which a copy is drifted, missing or failed, in the overview's order.
QList<SkillSummary> needsAttention(const WorkspaceOverview &overview);

} // namespace vornel::LibraryQuery

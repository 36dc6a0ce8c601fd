#include "LibraryQuery.h"

#include "LocaleText.h"

#include <QHash>

#include <algorithm>
#include <iterator>
#include <limits>

namespace vornel::LibraryQuery {

namespace {

bool containsFolded(const SkillSummary &skill, const QString &foldedSearch)
{
    const auto matches = [&foldedSearch](const QString &text) {
        return LocaleText::folded(text).contains(foldedSearch);
    };
    return foldedSearch.isEmpty() || matches(skill.displayName) || matches(skill.slug) ||
           matches(skill.summary) || matches(skill.category) || std::ranges::any_of(skill.tags, matches);
}

QHash<QString, qint64> categoryRanks(const QList<SkillCategory> &categories)
{
    QHash<QString, qint64> ranks;
    for (const SkillCategory &category : categories)
        ranks.insert(category.id, ranks.size());
    return ranks;
}

} // namespace

QList<SkillSummary> filteredSkills(const QList<SkillSummary> &skills, const Filter &filter)
{
    const QString search = LocaleText::folded(filter.searchText.trimmed());
    const auto passes = [&](const SkillSummary &skill) {
        return containsFolded(skill, search) &&
               (!filter.category || skill.category.compare(*filter.category, Qt::CaseInsensitive) == 0) &&
               (!filter.maturity || skill.maturity == *filter.maturity);
    };
    QList<SkillSummary> kept;
    std::ranges::copy_if(skills, std::back_inserter(kept), passes);
    return kept;
}

QList<SkillSummary> orderedFilteredSkills(const WorkspaceOverview &overview, const Filter &filter)
{
    const QHash<QString, qint64> ranks = categoryRanks(overview.categories);
    const auto rank = [&](const SkillSummary &skill) {
        return filter.category ? 0 : ranks.value(skill.category, std::numeric_limits<qint64>::max());
    };
    const auto comesFirst = [&](const SkillSummary &a, const SkillSummary &b) {
        if (rank(a) != rank(b))
            return rank(a) < rank(b);
        if (const int byName = LocaleText::standardCompare(a.displayName, b.displayName); byName != 0)
            return byName < 0;
        return LocaleText::standardCompare(a.slug, b.slug) < 0;
    };
    QList<SkillSummary> skills = filteredSkills(overview.skills, filter);
    std::ranges::stable_sort(skills, comesFirst);
    return skills;
}

QList<SkillSummary> needsAttention(const WorkspaceOverview &overview)
{
    QList<SkillSummary> kept;
    std::ranges::copy_if(overview.skills, std::back_inserter(kept), [](const SkillSummary &skill) {
        return skill.syncState == SyncState::drifted || skill.syncState == SyncState::missing ||
               skill.syncState == SyncState::failed;
    });
    return kept;
}

} // namespace vornel::LibraryQuery

#include "LibraryQuery.h"

#include "LocaleText.h"

#include <QHash>

#include <algorithm>
#include <iterator>
#include <numeric>
#include <utility>
#include <vector>

using namespace Qt::StringLiterals;

namespace vornel {

namespace {

/// Separates the texts of a skill, which are searched as one. It is a combining mark, of which folded texts
/// have none: a search, which is folded too, can't match across two texts.
constexpr QChar textSeparator(u'\u0300');

QString searchedText(const SkillSummary &skill)
{
    QString joined;
    for (const QString &text :
         QStringList{skill.displayName, skill.slug, skill.summary, skill.category} + skill.tags)
        joined += LocaleText::folded(text) + textSeparator;
    return joined;
}

/// The words that a search looks for, in the form in which texts are searched.
QStringList searchedWords(const QString &searchText)
{
    return LocaleText::folded(searchText.simplified()).split(u' ', Qt::SkipEmptyParts);
}

bool hasEach(const QString &text, const QStringList &words)
{
    return std::ranges::all_of(words, [&text](const QString &word) { return text.contains(word); });
}

bool hasTags(const SkillSummary &skill, const QStringList &tags)
{
    return std::ranges::all_of(
        tags, [&skill](const QString &tag) { return skill.tags.contains(tag, Qt::CaseInsensitive); });
}

QList<qsizetype> categoryRanks(const QList<SkillSummary> &skills, const QList<SkillCategory> &categories)
{
    QHash<QString, qsizetype> rankOf;
    for (const SkillCategory &category : categories)
        rankOf.insert(category.id, rankOf.size());
    QList<qsizetype> ranks;
    ranks.reserve(skills.size());
    for (const SkillSummary &skill : skills)
        ranks.append(rankOf.value(skill.category, categories.size()));
    return ranks;
}

QList<qsizetype> positionsByName(const QList<SkillSummary> &skills)
{
    struct Keys
    {
        QCollatorSortKey name;
        QCollatorSortKey slug;
    };
    std::vector<Keys> keys;
    keys.reserve(static_cast<std::size_t>(skills.size()));
    for (const SkillSummary &skill : skills)
        keys.push_back({LocaleText::sortKey(skill.displayName), LocaleText::sortKey(skill.slug)});

    QList<qsizetype> positions(skills.size());
    std::iota(positions.begin(), positions.end(), 0);
    std::ranges::stable_sort(positions, [&keys](qsizetype left, qsizetype right) {
        const Keys &a = keys[static_cast<std::size_t>(left)];
        const Keys &b = keys[static_cast<std::size_t>(right)];
        const int byName = a.name.compare(b.name);
        return byName != 0 ? byName < 0 : a.slug < b.slug;
    });
    return positions;
}

} // namespace

QList<SkillSummary> LibraryQuery::found(const QList<SkillSummary> &skills, const QString &searchText)
{
    const QStringList words = searchedWords(searchText);
    if (words.isEmpty())
        return skills;
    QList<SkillSummary> kept;
    std::ranges::copy_if(skills, std::back_inserter(kept),
                         [&words](const SkillSummary &skill) { return hasEach(searchedText(skill), words); });
    return kept;
}

QList<SkillSummary> LibraryQuery::needsAttention(const WorkspaceOverview &overview)
{
    QList<SkillSummary> kept;
    std::ranges::copy_if(overview.skills, std::back_inserter(kept), [](const SkillSummary &skill) {
        return skill.syncState == SyncState::drifted || skill.syncState == SyncState::missing ||
               skill.syncState == SyncState::failed;
    });
    return kept;
}

SkillCategory LibraryQuery::category(const QList<SkillCategory> &categories, const QString &id)
{
    auto found = std::ranges::find(categories, id, &SkillCategory::id);
    if (found == categories.end())
        found = std::ranges::find(categories, SkillCategory::otherID, &SkillCategory::id);
    return found != categories.end() ? *found
                                     : SkillCategory{SkillCategory::otherID, u"Autre"_s, u"FFB347"_s, true};
}

LibraryIndex::LibraryIndex(QList<SkillSummary> skills, QList<SkillCategory> categories)
    : m_skills(std::move(skills)),
      m_categories(std::move(categories)),
      m_ranks(categoryRanks(m_skills, m_categories)),
      m_byName(positionsByName(m_skills)),
      m_byCategory(m_byName),
      m_byChange(m_byName)
{
    m_searchedTexts.reserve(m_skills.size());
    for (const SkillSummary &skill : std::as_const(m_skills))
        m_searchedTexts.append(searchedText(skill));
    std::ranges::stable_sort(m_byCategory, {}, [this](qsizetype position) { return m_ranks.at(position); });
    std::ranges::stable_sort(m_byChange, std::ranges::greater{},
                             [this](qsizetype position) { return m_skills.at(position).updatedAt; });
}

QList<SkillSummary> LibraryIndex::filteredSkills(const LibraryQuery::Filter &filter) const
{
    Positions positions = matching(filter);
    std::ranges::sort(positions);
    return skillsAt(positions);
}

QList<SkillSummary> LibraryIndex::orderedFilteredSkills(const LibraryQuery::Filter &filter) const
{
    return skillsAt(matching(filter));
}

SkillPage LibraryIndex::skillPage(const LibraryQuery::Filter &filter, qint64 requestedPage) const
{
    const Positions ordered = matching(filter);
    const Pagination pagination(ordered.size(), Pagination::defaultPageSize, requestedPage);
    const auto [begin, end] = pagination.itemRange();
    const Positions shown = ordered.sliced(begin, end - begin);
    return {pagination, skillsAt(shown), groups(shown, ordered), ungroupedCount(ordered)};
}

const LibraryIndex::Positions &LibraryIndex::inOrder(const LibraryQuery::Filter &filter) const
{
    if (filter.order == LibraryOrder::updated)
        return m_byChange;
    return filter.order == LibraryOrder::name || filter.category ? m_byName : m_byCategory;
}

/// The positions of the skills that pass the filter, in its order.
LibraryIndex::Positions LibraryIndex::matching(const LibraryQuery::Filter &filter) const
{
    const QStringList words = searchedWords(filter.searchText);
    const auto passes = [&](qsizetype position) {
        const SkillSummary &skill = m_skills.at(position);
        return (!filter.category || skill.category.compare(*filter.category, Qt::CaseInsensitive) == 0) &&
               (!filter.maturity || skill.maturity == *filter.maturity) && hasTags(skill, filter.tags) &&
               (!filter.among || filter.among->contains(skill.id)) &&
               hasEach(m_searchedTexts.at(position), words);
    };
    // A part of an ordered list is ordered, so nothing has to be sorted at each key stroke.
    Positions kept;
    std::ranges::copy_if(inOrder(filter), std::back_inserter(kept), passes);
    return kept;
}

QList<SkillSummary> LibraryIndex::skillsAt(const Positions &positions) const
{
    QList<SkillSummary> skills;
    skills.reserve(positions.size());
    for (const qsizetype position : positions)
        skills.append(m_skills.at(position));
    return skills;
}

QList<SkillGroup> LibraryIndex::groups(const Positions &shown, const Positions &ordered) const
{
    QList<SkillGroup> groups(m_categories.size() + 1); // the last one takes the unknown categories
    for (const qsizetype position : ordered)
        ++groups[m_ranks.at(position)].totalCount;
    for (const qsizetype position : shown)
        groups[m_ranks.at(position)].skills.append(m_skills.at(position));
    for (qsizetype rank = 0; rank < m_categories.size(); ++rank)
        groups[rank].category = m_categories.at(rank);
    groups.removeLast();
    groups.removeIf([](const SkillGroup &group) { return group.skills.isEmpty(); });
    return groups;
}

qint64 LibraryIndex::ungroupedCount(const Positions &positions) const
{
    return std::ranges::count(positions, m_categories.size(),
                              [this](qsizetype position) { return m_ranks.at(position); });
}

} // namespace vornel

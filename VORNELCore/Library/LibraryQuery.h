#pragma once

#include "Pagination.h"

#include <VORNELCore/Records/WorkspaceModels.h>

#include <QSet>
#include <QString>
#include <QUuid>

#include <optional>

namespace vornel {

/// Which skills of a library are shown, and in what order. Pure functions of what they are given.
namespace LibraryQuery {

/// The filters of the library, and its order. An empty search and absent choices let everything pass.
struct Filter
{
    QString searchText = {}; ///< each word is looked for in the name, slug, summary, category and each tag
    std::optional<QString> category = {}; ///< identifier of a category, compared without regard to case
    std::optional<Maturity> maturity = {};
    QStringList tags = {}; ///< a skill must have them all, whatever their case
    LibraryOrder order = LibraryOrder::category;
    std::optional<QSet<QUuid>> among = {}; ///< the skills that may pass
};

/// The skills that a search finds, as the library's filter does, in their order.
QList<SkillSummary> found(const QList<SkillSummary> &skills, const QString &searchText);

/// The skills of which a copy is drifted, missing or failed, in the overview's order.
QList<SkillSummary> needsAttention(const WorkspaceOverview &overview);

/// The category that `id` names, or else the catch-all category, even if the catalog lacks that.
SkillCategory category(const QList<SkillCategory> &categories, const QString &id);

} // namespace LibraryQuery

/// The skills of one category on a page.
struct SkillGroup
{
    Q_GADGET
    Q_PROPERTY(vornel::SkillCategory category MEMBER category)
    Q_PROPERTY(QList<vornel::SkillSummary> skills MEMBER skills)
    Q_PROPERTY(qint64 totalCount MEMBER totalCount)

public:
    SkillCategory category;
    QList<SkillSummary> skills; ///< in the page's order
    qint64 totalCount = 0;      ///< the skills of this category on all pages

    bool operator==(const SkillGroup &) const = default;
};

/// One page of the library's filtered and ordered skills.
struct SkillPage
{
    Q_GADGET
    Q_PROPERTY(vornel::Pagination pagination MEMBER pagination)
    Q_PROPERTY(QList<vornel::SkillSummary> skills MEMBER skills)
    Q_PROPERTY(QList<vornel::SkillGroup> groups MEMBER groups)
    Q_PROPERTY(qint64 ungroupedCount MEMBER ungroupedCount)

public:
    Pagination pagination;
    QList<SkillSummary> skills;
    QList<SkillGroup> groups;  ///< in the catalog's order; skills of unknown categories are in none
    qint64 ungroupedCount = 0; ///< the skills of unknown categories on all pages

    bool operator==(const SkillPage &) const = default;
};

/// The skills and categories of an overview, prepared to be queried at every key stroke: what doesn't depend
/// on the filter is worked out once. Immutable, and cheap to copy.
class LibraryIndex
{
public:
    /// Without an overview, there are no skills and the built-in categories.
    explicit LibraryIndex(QList<SkillSummary> skills = {},
                          QList<SkillCategory> categories = SkillCategory::defaults());

    /// The skills that pass all three tests of `filter`, in the order in which they were given.
    QList<SkillSummary> filteredSkills(const LibraryQuery::Filter &filter) const;

    /// The same skills in the filter's order: by the category's place in the catalog, unless the filter names
    /// one category, or by the time of their last change; then by display name, then by slug.
    QList<SkillSummary> orderedFilteredSkills(const LibraryQuery::Filter &filter) const;

    /// A page of the ordered skills, counted from 1; the nearest one where the requested page doesn't exist.
    SkillPage skillPage(const LibraryQuery::Filter &filter, qint64 requestedPage) const;

private:
    using Positions = QList<qsizetype>;

    const Positions &inOrder(const LibraryQuery::Filter &filter) const;
    Positions matching(const LibraryQuery::Filter &filter) const;
    QList<SkillSummary> skillsAt(const Positions &positions) const;
    QList<SkillGroup> groups(const Positions &shown, const Positions &ordered) const;
    qint64 ungroupedCount(const Positions &positions) const;

    QList<SkillSummary> m_skills;
    QList<SkillCategory> m_categories;
    QStringList m_searchedTexts; ///< of each skill
    QList<qsizetype> m_ranks; ///< each skill's category in the catalog; unknown ones have the catalog's size
    Positions m_byName;
    Positions m_byCategory;
    Positions m_byChange;
};

} // namespace vornel

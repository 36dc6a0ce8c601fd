#include "TagFilterList.h"

#include <VORNELCore/Library/LocaleText.h>
#include <VORNELCore/Library/Wording.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vornel {

namespace {

struct TagCount
{
    QString tag;
    int count = 0;
};

/// By the form in which tags are compared.
QHash<QString, TagCount> tagCounts(const QList<SkillSummary> &skills)
{
    QHash<QString, TagCount> counts;
    for (const SkillSummary &skill : skills) {
        for (const QString &tag : skill.tags) {
            TagCount &counted = counts[LocaleText::caseless(tag)];
            if (counted.count++ == 0)
                counted.tag = tag;
        }
    }
    return counts;
}

/// The most frequent first, then by name.
QStringList inOrder(const QHash<QString, TagCount> &counts)
{
    QList<TagCount> tags = counts.values();
    std::ranges::sort(tags, [](const TagCount &left, const TagCount &right) {
        return left.count != right.count ? left.count > right.count
                                         : LocaleText::sortKey(left.tag) < LocaleText::sortKey(right.tag);
    });
    QStringList texts;
    for (const TagCount &counted : tags)
        texts.append(counted.tag);
    return texts;
}

} // namespace

QString TagFilter::spokenName() const
{
    return id + u", "_s + Wording::countedSkills(count);
}

TagFilterList::TagFilterList(QObject *parent) : KeyedListModel(parent)
{
    connect(this, &TagFilterList::modelChanged, this, &TagFilterList::follow);
}

void TagFilterList::follow()
{
    connect(m_model, &AppModel::overviewChanged, this, &TagFilterList::order);
    for (const auto changed : {&AppModel::searchTextChanged, &AppModel::selectedCategoryChanged,
                               &AppModel::selectedMaturityChanged, &AppModel::checksChanged})
        connect(m_model, changed, this, &TagFilterList::refresh);
    connect(m_model->filters(), &LibraryFilters::changed, this, &TagFilterList::refresh);
    order();
}

void TagFilterList::order()
{
    m_tags = inOrder(tagCounts(m_model->skills(Destination::library)));
    refresh();
}

void TagFilterList::refresh()
{
    const QHash<QString, TagCount> shown = tagCounts(m_model->filteredSkills());
    const QStringList &chosen = m_model->filters()->tags();
    QList<TagFilter> filters;
    for (const QString &tag : std::as_const(m_tags)) {
        const TagFilter filter{tag, chosen.contains(tag, Qt::CaseInsensitive),
                               shown.value(LocaleText::caseless(tag)).count};
        if (filter.isChosen || filter.count > 0)
            filters.append(filter);
    }
    setRecords(filters);
    m_faultyCount = static_cast<int>(m_model->checks().faulty().size());
    Q_EMIT changed();
}

} // namespace vornel

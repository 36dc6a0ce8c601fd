#include "LibraryFilters.h"

#include <VORNELCore/Library/Wording.h>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace vornel {

namespace {

constexpr auto orderKey = "libraryOrder";
constexpr auto tagsKey = "libraryTags";

} // namespace

LibraryFilters::LibraryFilters(std::shared_ptr<QSettings> defaults)
    : m_defaults(std::move(defaults)), m_tags(m_defaults->value(tagsKey).toStringList())
{
    const int order = m_defaults->value(orderKey).toInt();
    if (order >= 0 && order < orderTexts().size())
        m_order = static_cast<LibraryOrder>(order);
}

void LibraryFilters::setOrder(int order)
{
    if (order == this->order())
        return;
    m_order = static_cast<LibraryOrder>(order);
    m_defaults->setValue(orderKey, order);
    Q_EMIT changed();
}

QStringList LibraryFilters::orderTexts()
{
    return Wording::orders();
}

void LibraryFilters::toggleTag(const QString &tag)
{
    QStringList tags = m_tags;
    const auto isTag = [&tag](const QString &other) { return other.compare(tag, Qt::CaseInsensitive) == 0; };
    if (tags.removeIf(isTag) == 0)
        tags.append(tag);
    setTags(tags);
}

void LibraryFilters::keepTags(const QList<SkillSummary> &skills)
{
    QStringList kept = m_tags;
    kept.removeIf([&skills](const QString &tag) {
        return std::ranges::none_of(skills, [&tag](const SkillSummary &skill) {
            return skill.tags.contains(tag, Qt::CaseInsensitive);
        });
    });
    setTags(kept);
}

void LibraryFilters::setFaultyOnly(bool isFaultyOnly)
{
    if (std::exchange(m_isFaultyOnly, isFaultyOnly) != isFaultyOnly)
        Q_EMIT changed();
}

void LibraryFilters::clear()
{
    const bool wasFaultyOnly = std::exchange(m_isFaultyOnly, false);
    if (!m_tags.isEmpty())
        setTags({});
    else if (wasFaultyOnly)
        Q_EMIT changed();
}

void LibraryFilters::setTags(const QStringList &tags)
{
    if (std::exchange(m_tags, tags) == tags)
        return;
    m_defaults->setValue(tagsKey, tags);
    Q_EMIT changed();
}

LibraryQuery::Filter LibraryFilters::narrowed(LibraryQuery::Filter filter, const QSet<QUuid> &faulty) const
{
    filter.tags = m_tags;
    filter.order = m_order;
    if (m_isFaultyOnly)
        filter.among = faulty;
    return filter;
}

} // namespace vornel

#include "Pagination.h"

#include <QtNumeric>

#include <algorithm>

namespace vornel {

Pagination::Pagination(qint64 itemCount, qint64 pageSize, qint64 requestedPage)
    : m_itemCount(std::max<qint64>(itemCount, 0)),
      m_pageSize(std::max<qint64>(pageSize, 1)),
      m_page(std::clamp<qint64>(requestedPage, 1, pageCount()))
{}

qint64 Pagination::pageCount() const
{
    // The constructor makes this sum first, and no later calculation exceeds it: one check is enough for all.
    qint64 sum = 0;
    if (qAddOverflow(m_itemCount, m_pageSize, &sum))
        qFatal("the pages of a list are too large to be counted");
    return std::max<qint64>((sum - 1) / m_pageSize, 1);
}

ItemRange Pagination::itemRange() const
{
    return {(m_page - 1) * m_pageSize, std::min(m_page * m_pageSize, m_itemCount)};
}

qint64 Pagination::firstItemNumber() const
{
    const ItemRange range = itemRange();
    return range.isEmpty() ? 0 : range.begin + 1;
}

} // namespace vornel

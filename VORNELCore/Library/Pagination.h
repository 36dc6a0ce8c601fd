#pragma once

#include <QMetaType>
#include <QObject>

namespace vornel {

/// Positions in a list, from `begin` up to but not including `end`.
struct ItemRange
{
    qint64 begin = 0;
    qint64 end = 0;

    bool isEmpty() const { return begin == end; }

    bool operator==(const ItemRange &) const = default;
};

/// A list cut into pages, and the page shown of it. Its page always exists, since an empty list has one too.
struct Pagination
{
    Q_GADGET
    Q_PROPERTY(qint64 itemCount READ itemCount)
    Q_PROPERTY(qint64 pageSize READ pageSize)
    Q_PROPERTY(qint64 page READ page)
    Q_PROPERTY(qint64 pageCount READ pageCount)
    Q_PROPERTY(qint64 firstItemNumber READ firstItemNumber)
    Q_PROPERTY(qint64 lastItemNumber READ lastItemNumber)
    Q_PROPERTY(bool hasPreviousPage READ hasPreviousPage)
    Q_PROPERTY(bool hasNextPage READ hasNextPage)

public:
    static constexpr qint64 defaultPageSize = 24;

    /// An empty list.
    Pagination() = default;

    /// Shows the existing page that is nearest to the requested one. A negative count is taken as none, and a
    /// page holds at least one item. A count too large to be calculated with ends the program.
    Pagination(qint64 itemCount, qint64 pageSize, qint64 requestedPage);

    qint64 itemCount() const { return m_itemCount; }
    qint64 pageSize() const { return m_pageSize; }
    qint64 page() const { return m_page; } ///< counted from 1

    qint64 pageCount() const;

    /// The positions of the page's items in the whole list.
    ItemRange itemRange() const;

    /// The numbers, counted from 1, of the page's first and last item; 0 for an empty list.
    qint64 firstItemNumber() const;
    qint64 lastItemNumber() const { return itemRange().end; }

    bool hasPreviousPage() const { return m_page > 1; }
    bool hasNextPage() const { return m_page < pageCount(); }

    bool operator==(const Pagination &) const = default;

private:
    qint64 m_itemCount = 0;
    qint64 m_pageSize = defaultPageSize;
    qint64 m_page = 1;
};

} // namespace vornel

#include "LineStarts.h"

#include <QTextBlock>

#include <algorithm>
#include <iterator>

namespace vornel {

LineStarts::LineStarts(const QTextDocument *document) : m_document(document)
{
    follow(0, 0, document->characterCount());
}

TSPoint LineStarts::pointAt(int position) const
{
    const auto next = std::ranges::upper_bound(m_starts, position);
    const auto line = std::prev(next);
    return {static_cast<uint32_t>(line - m_starts.begin()),
            static_cast<uint32_t>(position - *line) * static_cast<uint32_t>(sizeof(char16_t))};
}

void LineStarts::follow(int begin, int oldEnd, int newEnd)
{
    std::vector<int> added;
    for (QTextBlock line = m_document->findBlock(begin).next(); line.isValid() && line.position() <= newEnd;
         line = line.next())
        added.push_back(line.position());
    const auto first = std::ranges::upper_bound(m_starts, begin);
    const auto last = std::ranges::upper_bound(m_starts, oldEnd);
    std::for_each(last, m_starts.end(), [&](int &start) { start += newEnd - oldEnd; });
    m_starts.insert(m_starts.erase(first, last), added.begin(), added.end());
}

} // namespace vornel

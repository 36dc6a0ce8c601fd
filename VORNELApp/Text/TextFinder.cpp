#include "TextFinder.h"

#include <QStringMatcher>
#include <QTextDocument>

#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;

namespace vornel {

namespace {

/// With blanks in place of no-break spaces.
QString withPlainBlanks(QString text)
{
    return text.replace(u'\u00A0', u' ').replace(u'\u202F', u' ');
}

} // namespace

void TextFinder::setDocument(QQuickTextDocument *document)
{
    m_document = document;
    setTextDocument(document->textDocument());
}

void TextFinder::setTextDocument(QTextDocument *document)
{
    m_textDocument = document;
    connect(document, &QTextDocument::contentsChange, this, &TextFinder::followEdit);
    findAll();
}

void TextFinder::setText(const QString &text)
{
    if (std::exchange(m_text, text) == text)
        return;
    findAll();
    Q_EMIT textChanged();
}

void TextFinder::findAll()
{
    if (m_textDocument != nullptr)
        m_places = placesBetween(m_textDocument->begin(), m_textDocument->lastBlock());
    Q_EMIT changed();
}

int TextFinder::next(int position) const
{
    if (m_places.isEmpty())
        return -1;
    const auto found = std::ranges::lower_bound(m_places, position);
    return found == m_places.end() ? m_places.first() : *found;
}

int TextFinder::previous(int position) const
{
    if (m_places.isEmpty())
        return -1;
    const auto found = std::ranges::upper_bound(m_places, position - static_cast<int>(m_text.size()));
    return found == m_places.begin() ? m_places.last() : *std::prev(found);
}

int TextFinder::ordinal(int begin, int end) const
{
    const auto found = std::ranges::lower_bound(m_places, begin);
    const bool isPlace = found != m_places.end() && *found == begin && end - begin == m_text.size();
    return isPlace ? static_cast<int>(found - m_places.begin()) + 1 : 0;
}

/// The places in the lines that were changed are looked for anew; those behind them move along.
void TextFinder::followEdit(int from, int removed, int added)
{
    const QTextBlock first = m_textDocument->findBlock(from);
    QTextBlock last = m_textDocument->findBlock(from + added);
    if (!last.isValid())
        last = m_textDocument->lastBlock();
    const int shift = added - removed;
    const bool isAtEnd = last == m_textDocument->lastBlock();
    const int formerEnd = isAtEnd ? std::numeric_limits<int>::max() : last.position() + last.length() - shift;

    const auto before = std::ranges::lower_bound(m_places, first.position());
    const auto behind = std::lower_bound(before, m_places.end(), formerEnd);
    QList<int> places(m_places.begin(), before);
    places += placesBetween(first, last);
    std::transform(behind, m_places.end(), std::back_inserter(places),
                   [shift](int place) { return place + shift; });
    if (std::exchange(m_places, places) != places)
        Q_EMIT changed();
}

QList<int> TextFinder::placesBetween(QTextBlock first, const QTextBlock &last) const
{
    QList<int> places;
    if (m_text.isEmpty())
        return places;
    const QStringMatcher matcher(withPlainBlanks(m_text), Qt::CaseInsensitive);
    for (const QTextBlock end = last.next(); first.isValid() && first != end; first = first.next()) {
        const QString line = withPlainBlanks(first.text());
        for (qsizetype at = matcher.indexIn(line); at >= 0; at = matcher.indexIn(line, at + m_text.size()))
            places.append(first.position() + static_cast<int>(at));
    }
    return places;
}

} // namespace vornel

#include "CodeHighlighter.h"

#include <QTextDocument>

#include <algorithm>
#include <utility>

using namespace std::chrono_literals;

namespace vornel {

namespace {

/// Leaves most of a frame to others.
constexpr auto readingTime = 4ms;

/// A longer text stays plain. The library counts the parts of a piece in 16 bits, and a list that nothing
/// closes is one piece: with more parts, it would end the program.
constexpr int longestText = 50'000;

/// The parts of so many lines are looked for at once, which takes hardly longer than for one.
constexpr int linesAtOnce = 100;

/// A longer line isn't written by hand; it would take long to show it in many colours.
constexpr int longestLine = 4'000;

} // namespace

CodeHighlighter::CodeHighlighter(QObject *parent) : SlicedHighlighter(parent)
{
    m_reading.setSingleShot(true);
    connect(&m_reading, &QTimer::timeout, this, &CodeHighlighter::read);
}

void CodeHighlighter::setPath(const QString &path)
{
    m_path = path;
    if (document() != nullptr && grammar() != m_grammar)
        begin();
}

void CodeHighlighter::setTextDocument(QTextDocument *document)
{
    m_formats = {QTextCharFormat(),        colored(m_commentColor), colored(m_stringColor),
                 colored(m_constantColor), colored(m_keywordColor), colored(m_nameColor)};
    // First, for the lines are coloured by the tree; and not as long as the base is destroyed.
    connect(document, &QTextDocument::contentsChange, &m_reading,
            [this](int from, int /*removed*/, int added) { followEdit(from, added); });
    setDocument(document);
    begin();
}

/// That of the text as it is now.
const Grammar *CodeHighlighter::grammar() const
{
    return document()->characterCount() > longestText ? nullptr
                                                      : Grammar::of(m_path, document()->firstBlock().text());
}

void CodeHighlighter::begin()
{
    m_grammar = grammar();
    m_tree.reset();
    if (m_grammar != nullptr)
        m_tree.emplace(*m_grammar, document());
    colorLater(document()->firstBlock(), document()->lastBlock());
    read();
}

void CodeHighlighter::followEdit(int from, int added)
{
    if (grammar() != m_grammar) {
        begin();
    } else if (m_tree) {
        m_tree->follow(from, added);
        read();
    }
}

/// Goes on where the time has run out.
void CodeHighlighter::read()
{
    m_found = {};
    m_parts.clear();
    if (document() == nullptr || !m_tree)
        return;
    const std::optional<TextRange> changes = m_tree->read(readingTime);
    if (!changes)
        return m_reading.start();
    m_reading.stop();
    if (changes->begin < changes->end)
        colorLater(document()->findBlock(changes->begin), document()->findBlock(changes->end));
}

void CodeHighlighter::highlightBlock(const QString &text)
{
    if (!mayGoOn() || !m_tree || text.size() > longestLine)
        return;
    const int begin = currentBlock().position();
    const int end = begin + static_cast<int>(text.size());
    if (begin < m_found.begin || end > m_found.end)
        findParts();
    for (const ColoredPart &part : m_parts) {
        const int first = std::max(part.begin, begin);
        const int last = std::min(part.end, end);
        if (first < last)
            setFormat(first - begin, last - first, m_formats.at(part.role));
    }
}

/// Finds those of the current line and of some after it, up to a very long one.
void CodeHighlighter::findParts()
{
    QTextBlock last = currentBlock();
    for (int count = 1; count < linesAtOnce && last.next().isValid() && last.next().length() <= longestLine;
         ++count)
        last = last.next();
    m_found = {currentBlock().position(), last.position() + last.length() - 1};
    m_parts = m_tree->parts(m_found);
}

} // namespace vornel

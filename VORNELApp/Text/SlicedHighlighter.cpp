#include "SlicedHighlighter.h"

#include <QTextDocument>
#include <QTextLayout>

#include <utility>

namespace vornel {

namespace {

/// So many lines are coloured within a few milliseconds.
constexpr int linesInSlice = 400;

} // namespace

SlicedHighlighter::SlicedHighlighter(QObject *parent) : QSyntaxHighlighter(parent)
{
    m_turn.setSingleShot(true);
    connect(&m_turn, &QTimer::timeout, this, &SlicedHighlighter::goOn);
}

QTextCharFormat SlicedHighlighter::colored(const QColor &color)
{
    QTextCharFormat format;
    format.setForeground(color);
    return format;
}

bool SlicedHighlighter::mayGoOn()
{
    beginSlice();
    if (m_linesLeft-- > 0)
        return true;
    for (const QTextLayout::FormatRange &range : currentBlock().layout()->formats())
        setFormat(range.start, range.length, range.format);
    colorLater(currentBlock(), currentBlock());
    return false;
}

void SlicedHighlighter::colorLater(const QTextBlock &first, const QTextBlock &last)
{
    beginSlice();
    if (m_rest.isNull() || first.position() < m_rest.position())
        m_rest = QTextCursor(first);
    if (m_restEnd.isNull() || last.position() > m_restEnd.position())
        m_restEnd = QTextCursor(last);
}

/// Unless one has begun already.
void SlicedHighlighter::beginSlice()
{
    if (m_turn.isActive())
        return;
    m_linesLeft = linesInSlice;
    m_turn.start();
}

void SlicedHighlighter::goOn()
{
    if (m_rest.isNull())
        return;
    QTextBlock line = std::exchange(m_rest, {}).block();
    const QTextCursor end = std::exchange(m_restEnd, {});
    for (; m_rest.isNull() && line.isValid() && line.position() <= end.position(); line = line.next())
        rehighlightBlock(line); // with those after it, as far as their states change
    if (!m_rest.isNull() && m_restEnd.position() < end.position())
        m_restEnd = end;
}

} // namespace vornel

#include "PlainTextLayout.h"

#include <QFontMetricsF>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>

#include <algorithm>
#include <cmath>

namespace vornel {

namespace {

/// Above so many characters, a line is wrapped wherever its room ends: to find a blank in it, Qt would go
/// through a long word again for each line of it.
constexpr int longestWrapped = 4'000;

} // namespace

int PlainTextLayout::hitTest(const QPointF &point, Qt::HitTestAccuracy /*accuracy*/) const
{
    const int lastLine = std::max(0, document()->lineCount() - 1);
    const int line = std::clamp(static_cast<int>(std::floor(point.y() / m_lineHeight)), 0, lastLine);
    const QTextBlock block = document()->findBlockByLineNumber(line);
    const QTextLine hit = block.layout()->lineAt(line - block.firstLineNumber());
    return block.position() + (hit.isValid() ? hit.xToCursor(point.x()) : 0);
}

QSizeF PlainTextLayout::documentSize() const
{
    return {document()->textWidth(), document()->lineCount() * m_lineHeight};
}

QRectF PlainTextLayout::frameBoundingRect(QTextFrame * /*frame*/) const
{
    return {QPointF(), documentSize()};
}

QRectF PlainTextLayout::blockBoundingRect(const QTextBlock &block) const
{
    if (!block.isValid())
        return {};
    return {0, block.firstLineNumber() * m_lineHeight, document()->textWidth(),
            block.lineCount() * m_lineHeight};
}

void PlainTextLayout::documentChanged(int from, int /*charsRemoved*/, int charsAdded)
{
    document()->rootFrame(); // made when it is first asked for: here, not by the thread that draws
    if (document()->textWidth() <= 0)
        return; // the item has no size yet
    m_lineHeight = std::ceil(QFontMetricsF(document()->defaultFont()).lineSpacing());
    const QTextBlock end = document()->findBlock(from + charsAdded).next();
    for (QTextBlock block = document()->findBlock(from); block.isValid() && block != end;
         block = block.next()) {
        layOut(block);
        Q_EMIT updateBlock(block);
    }
    Q_EMIT documentSizeChanged(documentSize());
    Q_EMIT update();
}

void PlainTextLayout::layOut(QTextBlock block)
{
    QTextLayout &layout = *block.layout();
    QTextOption option = document()->defaultTextOption();
    if (block.length() > longestWrapped)
        option.setWrapMode(QTextOption::WrapAnywhere);
    layout.setTextOption(option);
    layout.beginLayout();
    int count = 0;
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(document()->textWidth());
        line.setPosition({0, count * m_lineHeight});
        ++count;
    }
    layout.endLayout();
    block.setLineCount(std::max(1, count));
}

} // namespace vornel

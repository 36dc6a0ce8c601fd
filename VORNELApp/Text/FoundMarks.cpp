#include "FoundMarks.h"

#include <QAbstractTextDocumentLayout>
#include <QQuickWindow>
#include <QSGRectangleNode>
#include <QTextDocument>
#include <QTextLayout>

#include <algorithm>
#include <utility>

namespace vornel {

FoundMarks::FoundMarks(QQuickItem *parent) : QQuickItem(parent)
{
    setFlag(ItemHasContents);
}

void FoundMarks::setOrigin(const QPointF &origin)
{
    if (std::exchange(m_origin, origin) == origin)
        return;
    polish();
    Q_EMIT originChanged();
}

void FoundMarks::componentComplete()
{
    QQuickItem::componentComplete();
    connect(m_finder, &TextFinder::changed, this, &QQuickItem::polish);
    connect(m_finder->textDocument()->documentLayout(), &QAbstractTextDocumentLayout::documentSizeChanged,
            this, &QQuickItem::polish);
}

void FoundMarks::geometryChange(const QRectF &now, const QRectF &before)
{
    QQuickItem::geometryChange(now, before);
    polish();
}

void FoundMarks::updatePolish()
{
    m_marks.clear();
    const QAbstractTextDocumentLayout *layout = m_finder->textDocument()->documentLayout();
    const QRectF view(-m_origin, size());
    const int begin = layout->hitTest(view.topLeft(), Qt::FuzzyHit);
    const int end = layout->hitTest(view.bottomRight(), Qt::FuzzyHit);
    const QList<int> &places = m_finder->places();
    const auto length = static_cast<int>(m_finder->text().size());
    for (auto place = std::ranges::lower_bound(places, begin - length); place != places.end() && *place < end;
         ++place)
        mark(*place);
    update();
}

/// A place that is broken into several lines has a mark in each.
void FoundMarks::mark(int place)
{
    const QTextBlock block = m_finder->textDocument()->findBlock(place);
    const QPointF corner =
        m_finder->textDocument()->documentLayout()->blockBoundingRect(block).topLeft() + m_origin;
    const int begin = place - block.position();
    const int end = begin + static_cast<int>(m_finder->text().size());
    QTextLine line = block.layout()->lineForTextPosition(begin);
    for (; line.isValid() && line.textStart() < end; line = block.layout()->lineAt(line.lineNumber() + 1)) {
        const qreal left = line.cursorToX(std::max(begin, line.textStart()));
        const qreal right = line.cursorToX(std::min(end, line.textStart() + line.textLength()));
        m_marks.append(QRectF(left, line.y(), right - left, line.height()).normalized().translated(corner));
    }
}

QSGNode *FoundMarks::updatePaintNode(QSGNode *former, UpdatePaintNodeData * /*data*/)
{
    delete former; // NOLINT: the scene graph's nodes belong to whoever makes them
    auto *node = new QSGNode;
    for (const QRectF &rect : std::as_const(m_marks)) {
        QSGRectangleNode *mark = window()->createRectangleNode();
        mark->setRect(rect);
        mark->setColor(m_color);
        node->appendChildNode(mark);
    }
    return node;
}

} // namespace vornel

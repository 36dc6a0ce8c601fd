#pragma once

#include <QAbstractTextDocumentLayout>

namespace vornel {

/// Lays out a text in one font, wrapped, all lines of one height. A change costs what the changed lines cost,
/// however long the text is; Qt's own layout goes through the whole rest of it.
class PlainTextLayout : public QAbstractTextDocumentLayout
{
    Q_OBJECT

public:
    /// Belongs to `document`, which must be told to use it.
    explicit PlainTextLayout(QTextDocument *document) : QAbstractTextDocumentLayout(document) {}

    void draw(QPainter * /*painter*/, const PaintContext & /*context*/) override {
    } // the item draws the blocks
    int hitTest(const QPointF &point, Qt::HitTestAccuracy accuracy) const override;
    int pageCount() const override { return 1; }
    QSizeF documentSize() const override;
    QRectF frameBoundingRect(QTextFrame *frame) const override;
    QRectF blockBoundingRect(const QTextBlock &block) const override;

protected:
    void documentChanged(int from, int charsRemoved, int charsAdded) override;

private:
    void layOut(QTextBlock block);

    qreal m_lineHeight = 1;
};

} // namespace vornel

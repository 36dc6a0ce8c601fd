#pragma once

#include "TextFinder.h"

#include <QColor>
#include <QQuickItem>

namespace vornel {

/// Marks the places of a finder behind the text. However many there are, only those in view take time.
class FoundMarks : public QQuickItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(vornel::TextFinder *finder MEMBER m_finder REQUIRED)
    Q_PROPERTY(QPointF origin READ origin WRITE setOrigin NOTIFY originChanged)
    Q_PROPERTY(QColor color MEMBER m_color)

public:
    explicit FoundMarks(QQuickItem *parent = nullptr);

    /// Where the text begins, in this item.
    QPointF origin() const { return m_origin; }
    void setOrigin(const QPointF &origin);

Q_SIGNALS:
    void originChanged();

protected:
    void componentComplete() override;
    void geometryChange(const QRectF &now, const QRectF &before) override;
    void updatePolish() override;
    QSGNode *updatePaintNode(QSGNode *former, UpdatePaintNodeData *data) override;

private:
    void mark(int place);

    TextFinder *m_finder = nullptr;
    QPointF m_origin;
    QColor m_color;
    QList<QRectF> m_marks;
};

} // namespace vornel

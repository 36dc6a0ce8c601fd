#pragma once

#include <QColor>
#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

namespace vornel {

/// A stroke icon, drawn in one colour at the item's size and the screen's resolution. Icons are SVG files
/// whose strokes are "currentColor".
class Symbol : public QQuickItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString name READ name WRITE setName NOTIFY nameChanged)
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged)

public:
    explicit Symbol(QQuickItem *parent = nullptr);

    /// The folder of the icons, which has one "<name>.svg" for each.
    static void setFolder(const QString &folder);

    QString name() const { return m_name; }
    void setName(const QString &name);

    QColor color() const { return m_color; }
    void setColor(const QColor &color);

Q_SIGNALS:
    void nameChanged();
    void colorChanged();

protected:
    QSGNode *updatePaintNode(QSGNode *node, UpdatePaintNodeData *data) override;
    void itemChange(ItemChange change, const ItemChangeData &data) override;
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;

private:
    void redraw();

    QString m_name;
    QColor m_color = Qt::white;
    bool m_isStale = true;
};

} // namespace vornel

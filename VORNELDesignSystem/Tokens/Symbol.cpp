#include "Symbol.h"

#include <QCache>
#include <QFile>
#include <QPainter>
#include <QQuickWindow>
#include <QSGImageNode>
#include <QSvgRenderer>

#include <cmath>
#include <memory>

using namespace Qt::StringLiterals;

namespace vornel {

namespace {

QString &symbolFolder()
{
    static QString folder;
    return folder;
}

QByteArray strokes(const QString &name, const QColor &color)
{
    QFile file(symbolFolder() + u'/' + name + u".svg"_s);
    if (!file.open(QIODevice::ReadOnly)) {
        qWarning("symbol %s is missing", qUtf8Printable(name));
        return {};
    }
    return file.readAll().replace("currentColor", color.name().toLatin1());
}

QImage drawn(const QString &name, const QColor &color, const QSize &pixels)
{
    QImage image(pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QSvgRenderer renderer(strokes(name, color));
    renderer.setAspectRatioMode(Qt::KeepAspectRatio);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setOpacity(color.alphaF());
    renderer.render(&painter, QRectF(QPointF(), pixels));
    return image;
}

/// The icon as a picture; each of those in use is drawn only once. Called on the rendering thread.
QImage picture(const QString &name, const QColor &color, const QSize &pixels)
{
    constexpr int keptPictures = 512;
    thread_local QCache<QString, QImage> pictures(keptPictures);
    const QString key =
        u"%1 %2 %3×%4"_s.arg(name, color.name(QColor::HexArgb)).arg(pixels.width()).arg(pixels.height());
    if (const QImage *known = pictures.object(key))
        return *known;
    QImage image = drawn(name, color, pixels);
    pictures.insert(key, new QImage(image));
    return image;
}

} // namespace

Symbol::Symbol(QQuickItem *parent) : QQuickItem(parent)
{
    setFlag(ItemHasContents);
}

void Symbol::setFolder(const QString &folder)
{
    symbolFolder() = folder;
}

void Symbol::setName(const QString &name)
{
    if (std::exchange(m_name, name) == name)
        return;
    redraw();
    Q_EMIT nameChanged();
}

void Symbol::setColor(const QColor &color)
{
    if (std::exchange(m_color, color) == color)
        return;
    redraw();
    Q_EMIT colorChanged();
}

QSGNode *Symbol::updatePaintNode(QSGNode *node, UpdatePaintNodeData * /*data*/)
{
    const qreal ratio = window()->effectiveDevicePixelRatio();
    const QSize pixels(static_cast<int>(std::ceil(width() * ratio)),
                       static_cast<int>(std::ceil(height() * ratio)));
    if (m_name.isEmpty() || pixels.isEmpty()) {
        delete node;
        return nullptr;
    }
    auto *image = dynamic_cast<QSGImageNode *>(node);
    if (image == nullptr) {
        image = window()->createImageNode();
        image->setOwnsTexture(true);
        m_isStale = true;
    }
    if (std::exchange(m_isStale, false))
        image->setTexture(window()->createTextureFromImage(picture(m_name, m_color, pixels),
                                                           QQuickWindow::TextureCanUseAtlas));
    image->setRect(boundingRect());
    image->setSourceRect(QRectF(QPointF(), image->texture()->textureSize()));
    return image;
}

void Symbol::itemChange(ItemChange change, const ItemChangeData &data)
{
    if (change == ItemDevicePixelRatioHasChanged)
        redraw();
    QQuickItem::itemChange(change, data);
}

void Symbol::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    if (newGeometry.size() != oldGeometry.size())
        redraw();
    QQuickItem::geometryChange(newGeometry, oldGeometry);
}

void Symbol::redraw()
{
    m_isStale = true;
    update();
}

} // namespace vornel

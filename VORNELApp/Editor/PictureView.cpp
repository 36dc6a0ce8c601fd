#include "PictureView.h"

#include <QQuickWindow>
#include <QSGImageNode>

namespace vornel {

PictureView::PictureView(QQuickItem *parent) : QQuickItem(parent)
{
    setFlag(ItemHasContents);
    connect(this, &PictureView::contentChanged, this, &PictureView::follow);
}

void PictureView::follow()
{
    connect(m_content, &SkillFileContent::changed, this, &PictureView::redraw);
    redraw();
}

void PictureView::redraw()
{
    m_isStale = true;
    update();
}

QSGNode *PictureView::updatePaintNode(QSGNode *node, UpdatePaintNodeData * /*data*/)
{
    const QImage picture = m_content->picture();
    if (picture.isNull() || size().isEmpty()) {
        delete node;
        return nullptr;
    }
    auto *image = dynamic_cast<QSGImageNode *>(node);
    if (image == nullptr) {
        image = window()->createImageNode();
        image->setOwnsTexture(true);
        image->setFiltering(QSGTexture::Linear);
        m_isStale = true;
    }
    if (std::exchange(m_isStale, false))
        image->setTexture(window()->createTextureFromImage(picture));
    const QSizeF whole = picture.size() / window()->effectiveDevicePixelRatio();
    const QSizeF shown = whole.width() <= width() && whole.height() <= height()
                             ? whole
                             : whole.scaled(size(), Qt::KeepAspectRatio);
    QRectF place(QPointF(), shown);
    place.moveCenter(boundingRect().center());
    image->setRect(place);
    image->setSourceRect(QRectF(QPointF(), image->texture()->textureSize()));
    return image;
}

} // namespace vornel

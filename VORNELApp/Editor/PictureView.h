#pragma once

#include "SkillFileContent.h"

#include <QQuickItem>

namespace vornel {

/// Shows the picture that a file holds: whole, in the middle of the item, and never larger than it is.
class PictureView : public QQuickItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(vornel::SkillFileContent *content MEMBER m_content NOTIFY contentChanged REQUIRED)

public:
    explicit PictureView(QQuickItem *parent = nullptr);

Q_SIGNALS:
    void contentChanged();

protected:
    QSGNode *updatePaintNode(QSGNode *node, UpdatePaintNodeData *data) override;

private:
    void follow();
    void redraw();

    SkillFileContent *m_content = nullptr;
    bool m_isStale = true;
};

} // namespace vornel

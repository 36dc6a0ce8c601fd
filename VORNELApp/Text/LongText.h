#pragma once

#include <QQuickTextDocument>

namespace vornel {

/// Keeps the text item of `document` quick, however long its text: only what is in view is drawn, and a
/// change lays out only what it changes. For plain texts that wrap, in one font.
class LongText : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QQuickTextDocument *document READ document WRITE setDocument REQUIRED)

public:
    using QObject::QObject;

    QQuickTextDocument *document() const { return m_document; }
    void setDocument(QQuickTextDocument *document);

private:
    QQuickTextDocument *m_document = nullptr;
};

} // namespace vornel

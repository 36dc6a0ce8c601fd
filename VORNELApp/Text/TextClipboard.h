#pragma once

#include <QQuickTextDocument>

namespace vornel {

/// Puts parts of a document on the clipboard as they are. Qt would turn no-break spaces into plain ones.
class TextClipboard : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QQuickTextDocument *document MEMBER m_document REQUIRED)

public:
    using QObject::QObject;

    /// Copies the characters from `start` up to but not including `end`; lines end in "\n".
    Q_INVOKABLE void copy(int start, int end) const;

private:
    QQuickTextDocument *m_document = nullptr;
};

} // namespace vornel

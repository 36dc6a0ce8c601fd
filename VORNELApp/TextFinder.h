#pragma once

#include <QQuickTextDocument>

namespace vornel {

/// Finds a text in a document, without regard to case, going on at the other end.
class TextFinder : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QQuickTextDocument *document MEMBER m_document REQUIRED)

public:
    using QObject::QObject;

    /// Where `text` begins, at or after `position`; -1 where it isn't found.
    Q_INVOKABLE int next(const QString &text, int position) const;

    /// Where `text` begins, ending at or before `position`.
    Q_INVOKABLE int previous(const QString &text, int position) const;

    /// How often the document holds `text`.
    Q_INVOKABLE int count(const QString &text) const;

private:
    QQuickTextDocument *m_document = nullptr;
};

} // namespace vornel

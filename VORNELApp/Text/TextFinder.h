#pragma once

#include <QList>
#include <QQuickTextDocument>
#include <QTextBlock>

namespace vornel {

/// Every place at which a document holds a text, line by line, without regard to case or to the kind of
/// blank. An edit of the document costs what the changed lines cost.
class TextFinder : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QQuickTextDocument *document READ document WRITE setDocument REQUIRED)
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged)
    Q_PROPERTY(int count READ count NOTIFY changed)

public:
    using QObject::QObject;

    /// The document that is searched.
    QQuickTextDocument *document() const { return m_document; }
    void setDocument(QQuickTextDocument *document);
    QTextDocument *textDocument() const { return m_textDocument; }
    void setTextDocument(QTextDocument *document);

    /// What is looked for; an empty text is found nowhere.
    QString text() const { return m_text; }
    void setText(const QString &text);

    /// Where it begins, in the order of the document. No place overlaps another.
    const QList<int> &places() const { return m_places; }
    int count() const { return static_cast<int>(m_places.size()); }

    /// The first place at or after `position`, or the first of all; -1 without any.
    Q_INVOKABLE int next(int position) const;

    /// The last place that ends at or before `position`, or the last of all.
    Q_INVOKABLE int previous(int position) const;

    /// The number, from 1, of the place with this begin and end; 0 if there is no such place.
    Q_INVOKABLE int ordinal(int begin, int end) const;

Q_SIGNALS:
    void textChanged();

    /// The places may have changed.
    void changed();

private:
    void findAll();
    void followEdit(int from, int removed, int added);
    QList<int> placesBetween(QTextBlock first, const QTextBlock &last) const;

    QQuickTextDocument *m_document = nullptr;
    QTextDocument *m_textDocument = nullptr;
    QString m_text;
    QList<int> m_places;
};

} // namespace vornel

#pragma once

#include <QSet>
#include <QString>
#include <QStringList>

class QTextCursor;
class QTextDocument;

namespace vornel {

/// The text of a file in a document that is edited: whatever isn't typed stays as it was, to the character.
/// A document has one kind of line end; so that of the file is remembered with the document's own separator,
/// where it survives editing, undo and redo. New lines take that of the line before, or the file's usual one.
class FaithfulText
{
public:
    explicit FaithfulText(QTextDocument *document) : m_document(document) {}

    /// Shows another text, and forgets what could be undone.
    void begin(const QString &text);

    /// Replaces the text, which can be undone.
    void replace(const QString &text);

    /// The text as it would be saved.
    QString text() const;

    /// Whether the text differs from `text`; quick where the lengths differ.
    bool differsFrom(const QString &text) const;

private:
    void insert(QTextCursor &cursor, const QString &text);
    QString withLineEnds(QString raw) const;

    QTextDocument *m_document;
    QString m_mark; ///< a byte-order mark, which isn't shown
    QString m_usualEnd = QStringLiteral("\n");
    QSet<QString> m_ends; ///< all kinds that are, or were, in the document
};

} // namespace vornel

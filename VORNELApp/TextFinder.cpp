#include "TextFinder.h"

#include <QTextCursor>
#include <QTextDocument>

namespace vornel {

int TextFinder::next(const QString &text, int position) const
{
    const QTextDocument *document = m_document->textDocument();
    QTextCursor found = document->find(text, position);
    if (found.isNull())
        found = document->find(text, 0);
    return found.isNull() ? -1 : found.selectionStart();
}

int TextFinder::previous(const QString &text, int position) const
{
    const QTextDocument *document = m_document->textDocument();
    QTextCursor found = document->find(text, position, QTextDocument::FindBackward);
    if (found.isNull())
        found = document->find(text, document->characterCount() - 1, QTextDocument::FindBackward);
    return found.isNull() ? -1 : found.selectionStart();
}

int TextFinder::count(const QString &text) const
{
    const QString whole = m_document->textDocument()->toPlainText();
    int count = 0;
    qsizetype from = text.isEmpty() ? -1 : whole.indexOf(text, 0, Qt::CaseInsensitive);
    for (; from >= 0; from = whole.indexOf(text, from + text.size(), Qt::CaseInsensitive))
        ++count;
    return count;
}

} // namespace vornel

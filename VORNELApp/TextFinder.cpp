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
    return text.isEmpty()
               ? 0
               : static_cast<int>(m_document->textDocument()->toPlainText().count(text, Qt::CaseInsensitive));
}

} // namespace vornel

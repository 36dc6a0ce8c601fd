#include "TextClipboard.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QTextCursor>

namespace vornel {

void TextClipboard::copy(int start, int end) const
{
    if (start == end)
        return;
    QTextCursor cursor(m_document->textDocument());
    cursor.setPosition(start);
    cursor.setPosition(end, QTextCursor::KeepAnchor);
    QGuiApplication::clipboard()->setText(cursor.selectedText().replace(QChar::ParagraphSeparator, u'\n'));
}

} // namespace vornel

#include "LongText.h"

#include "PlainTextLayout.h"

#include <QQuickItem>
#include <QTextDocument>

namespace vornel {

void LongText::setDocument(QQuickTextDocument *document)
{
    m_document = document;
    auto *item = qobject_cast<QQuickItem *>(document->parent());
    item->setFlag(QQuickItem::ItemObservesViewport);

    QTextDocument *text = document->textDocument();
    auto *layout = new PlainTextLayout(text);
    text->setDocumentLayout(layout);
    // Qt connects the item with the first layout only. Without this, a line that is merely coloured anew
    // isn't drawn anew.
    connect(layout, SIGNAL(updateBlock(QTextBlock)), item, SLOT(invalidateBlock(QTextBlock)));
}

} // namespace vornel

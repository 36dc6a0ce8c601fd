#include "ConflictText.h"

#include <utility>

namespace vornel {

void ConflictText::setDocument(QQuickTextDocument *document)
{
    m_document = document;
    m_text.emplace(document->textDocument());
    connect(document->textDocument(), &QTextDocument::contentsChanged, this, &ConflictText::follow);
}

void ConflictText::edit(int row)
{
    m_row = -1;
    m_text->begin(m_conflicts->text(row));
    m_row = row;
}

void ConflictText::follow()
{
    if (m_row >= 0 && m_row < m_conflicts->count())
        m_conflicts->setText(m_row, m_text->text());
}

} // namespace vornel

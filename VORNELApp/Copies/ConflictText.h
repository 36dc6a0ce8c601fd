#pragma once

#include "ConflictList.h"

#include <VORNELApp/Text/FaithfulText.h>

#include <QQuickTextDocument>

#include <optional>

namespace vornel {

/// Lets the text of one conflict be edited in a document.
class ConflictText : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QQuickTextDocument *document READ document WRITE setDocument REQUIRED)
    Q_PROPERTY(vornel::ConflictList *conflicts MEMBER m_conflicts REQUIRED)

public:
    using QObject::QObject;

    QQuickTextDocument *document() const { return m_document; }
    void setDocument(QQuickTextDocument *document);

    /// Edits the text of the conflict in this row from now on.
    Q_INVOKABLE void edit(int row);

private:
    void follow();

    QQuickTextDocument *m_document = nullptr;
    ConflictList *m_conflicts = nullptr;
    std::optional<FaithfulText> m_text;
    int m_row = -1; ///< -1 while another text is put into the document
};

} // namespace vornel

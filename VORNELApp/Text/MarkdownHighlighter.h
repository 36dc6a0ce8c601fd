#pragma once

#include "SlicedHighlighter.h"

namespace vornel {

/// Colours the Markdown of a document lightly: headings, emphasis, code, links, and the metadata between two
/// lines "---" at its beginning.
class MarkdownHighlighter : public vornel::SlicedHighlighter // by its full name, under which QML knows it
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QColor headingColor MEMBER m_headingColor)
    Q_PROPERTY(QColor codeColor MEMBER m_codeColor)
    Q_PROPERTY(QColor linkColor MEMBER m_linkColor)
    Q_PROPERTY(QColor markColor MEMBER m_markColor)

public:
    using SlicedHighlighter::SlicedHighlighter;

protected:
    void highlightBlock(const QString &text) override;

private:
    enum State { Prose, Metadata, Fence };

    State stateAfter(const QString &text) const;
    void highlightMetadata(const QString &text);
    void highlightProse(const QString &text);
    void highlightSpans(const QString &text);
    void merge(qsizetype start, qsizetype length, const QTextCharFormat &change);

    QColor m_headingColor;
    QColor m_codeColor;
    QColor m_linkColor;
    QColor m_markColor;
};

} // namespace vornel

#pragma once

#include <QColor>
#include <QQmlParserStatus>
#include <QQuickTextDocument>
#include <QSyntaxHighlighter>

namespace vornel {

/// Colours the Markdown of a document lightly: headings, emphasis, code, links, and the metadata between two
/// lines "---" at its beginning.
class MarkdownHighlighter : public QSyntaxHighlighter, public QQmlParserStatus
{
    Q_OBJECT
    Q_INTERFACES(QQmlParserStatus)
    QML_ELEMENT
    Q_PROPERTY(QQuickTextDocument *document MEMBER m_document REQUIRED)
    Q_PROPERTY(QColor headingColor MEMBER m_headingColor)
    Q_PROPERTY(QColor codeColor MEMBER m_codeColor)
    Q_PROPERTY(QColor linkColor MEMBER m_linkColor)
    Q_PROPERTY(QColor markColor MEMBER m_markColor)

public:
    explicit MarkdownHighlighter(QObject *parent = nullptr) : QSyntaxHighlighter(parent) {}

    void classBegin() override {}
    void componentComplete() override;

protected:
    void highlightBlock(const QString &text) override;

private:
    enum State { Prose, Metadata, Fence };

    State stateAfter(const QString &text) const;
    void highlightMetadata(const QString &text);
    void highlightProse(const QString &text);
    void highlightSpans(const QString &text);
    void merge(qsizetype start, qsizetype length, const QTextCharFormat &change);

    QQuickTextDocument *m_document = nullptr;
    QColor m_headingColor;
    QColor m_codeColor;
    QColor m_linkColor;
    QColor m_markColor;
};

} // namespace vornel

#pragma once

#include <QColor>
#include <QQmlParserStatus>
#include <QQuickTextDocument>
#include <QSyntaxHighlighter>
#include <QTextCursor>
#include <QTimer>

namespace vornel {

/// Colours the Markdown of a document lightly: headings, emphasis, code, links, and the metadata between two
/// lines "---" at its beginning. A long document is coloured in slices, between which others have their turn.
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
    explicit MarkdownHighlighter(QObject *parent = nullptr);

    void classBegin() override {}
    void componentComplete() override;

protected:
    void highlightBlock(const QString &text) override;

private:
    enum State { Prose, Metadata, Fence };

    bool mayGoOn();
    void goOn();
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
    QTimer m_turn;         ///< runs out when the main thread is free again
    int m_linesLeft = 0;   ///< that may be coloured before
    QTextCursor m_rest;    ///< where colouring goes on then; null when all is coloured
    QTextCursor m_restEnd; ///< the last line that was left out; others after it may follow
};

} // namespace vornel

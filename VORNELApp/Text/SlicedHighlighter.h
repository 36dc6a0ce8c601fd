#pragma once

#include <QColor>
#include <QQmlParserStatus>
#include <QQuickTextDocument>
#include <QSyntaxHighlighter>
#include <QTextBlock>
#include <QTextCursor>
#include <QTimer>

namespace vornel {

/// Colours a document line by line. A long one is coloured in slices, between which others have their turn.
class SlicedHighlighter : public QSyntaxHighlighter, public QQmlParserStatus
{
    Q_OBJECT
    Q_INTERFACES(QQmlParserStatus)
    QML_ANONYMOUS
    Q_PROPERTY(QQuickTextDocument *document MEMBER m_document REQUIRED)

public:
    explicit SlicedHighlighter(QObject *parent = nullptr);

    /// Begins to colour this document.
    virtual void setTextDocument(QTextDocument *document) { setDocument(document); }

    void classBegin() override {}
    void componentComplete() override { setTextDocument(m_document->textDocument()); }

protected:
    static QTextCharFormat colored(const QColor &color);

    /// Whether the current line is still part of the slice; if not, it stays as it is, and the next ones
    /// colour it.
    bool mayGoOn();

    /// Colours these lines, and those between, in the next slices.
    void colorLater(const QTextBlock &first, const QTextBlock &last);

private:
    void beginSlice();
    void goOn();

    QQuickTextDocument *m_document = nullptr;
    QTimer m_turn;         ///< runs out when the main thread is free again
    int m_linesLeft = 0;   ///< that may be coloured before
    QTextCursor m_rest;    ///< where colouring goes on then; null when all is coloured
    QTextCursor m_restEnd; ///< the last line that was left out; others after it may follow
};

} // namespace vornel

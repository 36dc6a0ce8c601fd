#include "FaithfulText.h"

#include <QHash>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vornel {

namespace {

constexpr int lineEndProperty = QTextFormat::UserProperty + 1;

struct Line
{
    QStringView text;
    QStringView end; ///< empty for the last line
};

/// Whether a document takes this character for the end of a line.
bool endsLine(QChar c)
{
    return c == u'\n' || c == u'\r' || c == QChar::ParagraphSeparator || c == u'\uFDD0' || c == u'\uFDD1';
}

QList<Line> lines(QStringView text)
{
    QList<Line> lines;
    qsizetype begin = 0;
    for (qsizetype at = 0; at < text.size(); ++at) {
        if (!endsLine(text.at(at)))
            continue;
        const qsizetype length = text.mid(at).startsWith(u"\r\n") ? 2 : 1;
        lines.append({text.mid(begin, at - begin), text.mid(at, length)});
        begin = at + length;
        at = begin - 1;
    }
    lines.append({text.mid(begin), {}});
    return lines;
}

/// The line end that is seen most often.
QString usualEnd(const QList<Line> &lines)
{
    QHash<QStringView, int> counts;
    for (const Line &line : lines.first(lines.size() - 1))
        ++counts[line.end];
    const auto most = std::max_element(counts.cbegin(), counts.cend());
    return most == counts.cend() ? u"\n"_s : most.key().toString();
}

} // namespace

void FaithfulText::begin(const QString &text)
{
    m_ends.clear();
    m_document->setUndoRedoEnabled(false);
    m_document->clear();
    QTextCursor cursor(m_document);
    cursor.beginEditBlock();
    insert(cursor, text);
    cursor.endEditBlock();
    m_document->setUndoRedoEnabled(true);
}

void FaithfulText::replace(const QString &text)
{
    QTextCursor cursor(m_document);
    cursor.beginEditBlock();
    cursor.select(QTextCursor::Document);
    cursor.removeSelectedText();
    insert(cursor, text);
    cursor.endEditBlock();
}

void FaithfulText::insert(QTextCursor &cursor, const QString &text)
{
    m_mark = text.startsWith(QChar::ByteOrderMark) ? text.left(1) : QString();
    const QList<Line> lines = vornel::lines(QStringView(text).mid(m_mark.size()));
    m_usualEnd = usualEnd(lines);
    for (const Line &line : lines) {
        cursor.insertText(line.text.toString(), QTextCharFormat());
        if (line.end.isEmpty())
            break;
        QTextCharFormat separator;
        separator.setProperty(lineEndProperty, line.end.toString());
        cursor.insertBlock(QTextBlockFormat(), separator);
        m_ends.insert(line.end.toString());
    }
    m_ends.insert(m_usualEnd);
}

QString FaithfulText::text() const
{
    return m_mark + withLineEnds(m_document->toRawText());
}

bool FaithfulText::differsFrom(const QString &text) const
{
    const qsizetype shownLength =
        text.size() - (text.startsWith(QChar::ByteOrderMark) ? 1 : 0) - text.count(u"\r\n"_s);
    return m_document->characterCount() - 1 != shownLength || this->text() != text;
}

/// A document's raw text, in which every separator reads alike, with each line's own end.
QString FaithfulText::withLineEnds(QString raw) const
{
    if (m_ends.size() == 1)
        return m_usualEnd.size() == 1 ? raw.replace(QChar::ParagraphSeparator, m_usualEnd.at(0))
                                      : raw.replace(QChar::ParagraphSeparator, m_usualEnd);
    QString text;
    text.reserve(raw.size() + m_document->blockCount());
    for (QTextBlock block = m_document->begin(); block.isValid(); block = block.next()) {
        if (block.position() > 0) { // a block's character format is that of the separator before it
            const QVariant end = block.charFormat().property(lineEndProperty);
            text += end.isValid() ? end.toString() : m_usualEnd;
        }
        text += QStringView(raw).mid(block.position(), block.length() - 1);
    }
    return text;
}

} // namespace vornel

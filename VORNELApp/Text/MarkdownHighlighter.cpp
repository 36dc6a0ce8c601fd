#include "MarkdownHighlighter.h"

#include <QRegularExpression>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vornel {

namespace {

/// A longer line isn't written by hand; looking for spans in it could take for ever.
constexpr qsizetype longestLine = 1'000;

/// Whether it is worth looking for spans, which takes longer than this.
bool mayHoldSpans(const QString &text)
{
    return text.size() <= longestLine &&
           std::ranges::any_of(text, [](QChar c) { return QStringView(u"`[*_/").contains(c); });
}

bool isFence(const QString &text)
{
    const QString line = text.trimmed();
    return line.startsWith(u"```"_s) || line.startsWith(u"~~~"_s);
}

} // namespace

void MarkdownHighlighter::highlightBlock(const QString &text)
{
    if (!mayGoOn())
        return; // with its state as it was, which ends this slice
    const int before = previousBlockState();
    const State state = stateAfter(text);
    setCurrentBlockState(state);
    if (before == Metadata || state == Metadata)
        highlightMetadata(text);
    else if (before == Fence || state == Fence)
        setFormat(0, static_cast<int>(text.size()), colored(m_codeColor));
    else
        highlightProse(text);
}

/// What the line after this one belongs to.
MarkdownHighlighter::State MarkdownHighlighter::stateAfter(const QString &text) const
{
    const bool isRule = text.trimmed() == u"---"_s;
    switch (previousBlockState()) {
    case Metadata:
        return isRule ? Prose : Metadata;
    case Fence:
        return isFence(text) ? Prose : Fence;
    case Prose:
        return isFence(text) ? Fence : Prose;
    default: // the first line
        return isRule ? Metadata : isFence(text) ? Fence : Prose;
    }
}

void MarkdownHighlighter::highlightMetadata(const QString &text)
{
    setFormat(0, static_cast<int>(text.size()), colored(m_markColor));
    const qsizetype colon = text.indexOf(u':');
    if (colon > 0 && !text.at(0).isSpace())
        setFormat(0, static_cast<int>(colon), colored(m_linkColor));
}

void MarkdownHighlighter::highlightProse(const QString &text)
{
    static const QRegularExpression heading(u"^#{1,6}\\s"_s);
    static const QRegularExpression mark(u"^\\s*([-*+]|\\d+[.)]|>)\\s"_s);
    if (text.startsWith(u'#') && heading.match(text).hasMatch()) {
        QTextCharFormat format = colored(m_headingColor);
        format.setFontWeight(QFont::DemiBold);
        setFormat(0, static_cast<int>(text.size()), format);
    } else if (const auto match = mark.match(text); match.hasMatch()) {
        setFormat(static_cast<int>(match.capturedStart(1)), static_cast<int>(match.capturedLength(1)),
                  colored(m_headingColor));
    }
    highlightSpans(text);
}

/// Emphasis, code and links. Whatever stands in code is code alone.
void MarkdownHighlighter::highlightSpans(const QString &text)
{
    static const QRegularExpression span(
        u"(?<code>`+)(?!`).*?(?<!`)\\g{code}(?!`)"
        "|(?<link>\\[[^\\]]*\\]\\([^)]*\\)|https?://[^\\s<>\"')]+)"
        "|(?<strong>\\*\\*|__)(?=\\S).+?(?<=\\S)\\g{strong}"
        "|(?<![*\\w])(?<emphasis>[*_])(?=[^\\s*_]).+?(?<=[^\\s*_])\\g{emphasis}(?![*\\w])"_s);
    if (!mayHoldSpans(text))
        return;
    QTextCharFormat strong;
    strong.setFontWeight(QFont::Bold);
    QTextCharFormat emphasis;
    emphasis.setFontItalic(true);
    for (auto matches = span.globalMatch(text); matches.hasNext();) {
        const QRegularExpressionMatch match = matches.next();
        const QTextCharFormat format = match.hasCaptured(u"code")     ? colored(m_codeColor)
                                       : match.hasCaptured(u"link")   ? colored(m_linkColor)
                                       : match.hasCaptured(u"strong") ? strong
                                                                      : emphasis;
        merge(match.capturedStart(), match.capturedLength(), format);
    }
}

/// Adds to the format of each character, so that a heading stays one.
void MarkdownHighlighter::merge(qsizetype start, qsizetype length, const QTextCharFormat &change)
{
    for (auto at = static_cast<int>(start); at < start + length; ++at) {
        QTextCharFormat merged = format(at);
        merged.merge(change);
        setFormat(at, 1, merged);
    }
}

} // namespace vornel

#include "LineDiff.h"

#include <VORNELCore/Text/GitLibrary.h>
#include <VORNELCore/Text/IsText.h>

#include <QLocale>

#include <algorithm>
#include <stdexcept>
#include <utility>

using namespace Qt::StringLiterals;

namespace vornel {

namespace {

using Kind = DiffLine::Kind;

/// Lines that are given back.
constexpr qsizetype mostLines = 5'000;

/// Lines of both texts that are compared: where many are alike, the time grows faster than their number.
constexpr qsizetype mostComparedLines = 200'000;

DiffLine remark(Kind kind, const QString &text)
{
    return {kind, text, 0, 0};
}

/// A carriage return at the end of a line that both sides have in common says nothing.
QString shownText(QByteArrayView line, Kind kind)
{
    if (line.endsWith('\n'))
        line.chop(1);
    if (kind == Kind::context && line.endsWith('\r'))
        line.chop(1);
    return QString::fromUtf8(line).replace(u'\r', u'␍');
}

/// Gathers the lines as they are found.
class Lines
{
public:
    explicit Lines(bool lastLineEndDiffers) : m_lastLineEndDiffers(lastLineEndDiffers) {}

    void beginHunk()
    {
        if (!m_lines.isEmpty())
            append(remark(Kind::hunk, u"⋯"_s));
    }

    void add(const git_diff_line &line)
    {
        switch (line.origin) {
        case GIT_DIFF_LINE_CONTEXT:
            return addText(Kind::context, line);
        case GIT_DIFF_LINE_ADDITION:
            return addText(Kind::added, line);
        case GIT_DIFF_LINE_DELETION:
            return addText(Kind::removed, line);
        case GIT_DIFF_LINE_ADD_EOFNL:
            return addMissingLineEnd(Kind::removed);
        case GIT_DIFF_LINE_DEL_EOFNL:
            return addMissingLineEnd(Kind::added);
        default:
            return;
        }
    }

    QList<DiffLine> finish()
    {
        if (m_leftOut > 0)
            m_lines.append(
                remark(Kind::hunk, u"… "_s + QLocale(QLocale::French).toString(m_leftOut) +
                                       (m_leftOut == 1 ? u" autre ligne"_s : u" autres lignes"_s)));
        return std::move(m_lines);
    }

private:
    void addText(Kind kind, const git_diff_line &line)
    {
        if (m_lines.size() >= mostLines) {
            ++m_leftOut;
            return;
        }
        const QByteArrayView text(line.content, static_cast<qsizetype>(line.content_len));
        append({kind, shownText(text, kind), std::max(line.old_lineno, 0), std::max(line.new_lineno, 0)});
    }

    void addMissingLineEnd(Kind kind)
    {
        if (m_lastLineEndDiffers)
            append(remark(kind, u"Pas de saut de ligne à la fin du fichier"_s));
    }

    void append(DiffLine line)
    {
        if (m_lines.size() < mostLines)
            m_lines.append(std::move(line));
    }

    bool m_lastLineEndDiffers;
    QList<DiffLine> m_lines;
    qsizetype m_leftOut = 0;
};

int onHunk(const git_diff_delta * /*file*/, const git_diff_hunk * /*hunk*/, void *lines)
{
    static_cast<Lines *>(lines)->beginHunk();
    return 0;
}

int onLine(const git_diff_delta * /*file*/, const git_diff_hunk * /*hunk*/, const git_diff_line *line,
           void *lines)
{
    static_cast<Lines *>(lines)->add(*line);
    return 0;
}

} // namespace

std::optional<QList<DiffLine>> lineDiff(QByteArrayView before, QByteArrayView after)
{
    if (!isText(before) || !isText(after))
        return std::nullopt;
    if (before.count('\n') + after.count('\n') > mostComparedLines)
        return {{remark(Kind::hunk, u"Trop de lignes pour une comparaison"_s)}};

    static const GitLibrary library;
    git_diff_options options;
    git_diff_options_init(&options, GIT_DIFF_OPTIONS_VERSION);
    options.flags = GIT_DIFF_FORCE_TEXT;
    options.context_lines = 3;
    Lines lines(before.endsWith('\n') != after.endsWith('\n'));
    if (git_diff_buffers(before.data(), static_cast<size_t>(before.size()), nullptr, after.data(),
                         static_cast<size_t>(after.size()), nullptr, &options, nullptr, nullptr, onHunk,
                         onLine, &lines) != 0)
        throw std::runtime_error("Les deux textes ne peuvent pas être comparés.");
    return lines.finish();
}

} // namespace vornel

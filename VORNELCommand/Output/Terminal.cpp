#include "Terminal.h"

#include <VORNELCore/Library/LocaleText.h>

#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <cwchar>
#include <system_error>
#include <thread>

using namespace Qt::StringLiterals;

namespace vornel::Terminal {

namespace {

bool showsColours()
{
    static const bool shows = ::isatty(STDOUT_FILENO) == 1 && std::getenv("NO_COLOR") == nullptr;
    return shows;
}

bool showsProgress()
{
    static const bool shows = ::isatty(STDERR_FILENO) == 1;
    return shows;
}

const char *escapeCode(Colour colour)
{
    switch (colour) {
    case Colour::Success:
        return "32";
    case Colour::Warning:
        return "33";
    case Colour::Danger:
        return "31";
    case Colour::Muted:
        return "2";
    case Colour::Plain:
        break;
    }
    return "0";
}

/// Whether a character takes one column, as nearly all characters of western texts do.
bool isNarrow(QChar c)
{
    return c < u'\u0300' || (c >= u'\u2010' && c <= u'\u2027');
}

/// The columns that a terminal gives to a text: two for a letter of Chinese, none for a combining accent. The
/// system tells it of every character, whatever the user's locale, but needs some time to load what it knows.
qsizetype width(const QString &text)
{
    if (std::ranges::all_of(text, isNarrow))
        return text.size();
    static const locale_t allCharacters = ::newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
    if (allCharacters == nullptr)
        return LocaleText::characterCount(text);
    const locale_t former = ::uselocale(allCharacters);
    qsizetype columns = 0;
    for (const wchar_t c : text.toStdWString()) {
        const int known = ::wcwidth(c);
        columns += known < 0 ? 1 : known;
    }
    ::uselocale(former);
    return columns;
}

} // namespace

QString coloured(const QString &text, Colour colour)
{
    if (colour == Colour::Plain || !showsColours())
        return text;
    return u"\x1b["_s + QLatin1String(escapeCode(colour)) + u'm' + text + u"\x1b[0m"_s;
}

QString printable(const QString &text)
{
    QString clean = text;
    for (QChar &c : clean) {
        const bool commandsTheTerminal = c.category() == QChar::Other_Control && c != u'\n' && c != u'\t';
        const bool reordersTheLine = (c >= u'\u202A' && c <= u'\u202E') || (c >= u'\u2066' && c <= u'\u2069');
        if (commandsTheTerminal || reordersTheLine)
            c = QChar::ReplacementCharacter;
    }
    return clean;
}

QString oneLine(const QString &text)
{
    return printable(text.simplified());
}

QString table(const QList<QList<Cell>> &rows)
{
    constexpr int gap = 2;
    QList<qsizetype> widths;
    for (const QList<Cell> &row : rows) {
        widths.resize(std::max(widths.size(), row.size()));
        for (qsizetype column = 0; column < row.size(); ++column)
            widths[column] = std::max(widths[column], width(oneLine(row[column].text)));
    }
    QString text;
    for (const QList<Cell> &row : rows) {
        for (qsizetype column = 0; column < row.size(); ++column) {
            const QString shown = oneLine(row[column].text);
            text += coloured(shown, row[column].colour);
            if (column + 1 < row.size())
                text += QString(widths[column] + gap - width(shown), u' ');
        }
        text += u'\n';
    }
    return text;
}

void print(const QString &text)
{
    printBytes(text.toUtf8());
}

void printBytes(QByteArrayView bytes)
{
    const auto size = static_cast<size_t>(bytes.size());
    const bool isWritten = bytes.isEmpty() || std::fwrite(bytes.data(), 1, size, stdout) == size;
    if (!isWritten || std::fflush(stdout) != 0)
        throw std::system_error(errno, std::system_category());
}

void printError(const QString &line)
{
    std::fprintf(stderr, "%s\n", line.toUtf8().constData());
}

void followProgress(const QString &label, const QFuture<void> &work)
{
    constexpr std::chrono::milliseconds interval{50};
    if (!showsProgress())
        return;
    while (!work.isFinished()) {
        if (const int total = work.progressMaximum(); total > 0)
            std::fprintf(stderr, "\r\x1b[K%s %d/%d", label.toUtf8().constData(), work.progressValue(), total);
        std::fflush(stderr);
        std::this_thread::sleep_for(interval);
    }
    std::fprintf(stderr, "\r\x1b[K");
    std::fflush(stderr);
}

} // namespace vornel::Terminal

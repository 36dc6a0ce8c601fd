#include "Terminal.h"

#include <VORNELCore/Library/LocaleText.h>

#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstdlib>
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
    QList<int> widths;
    for (const QList<Cell> &row : rows) {
        widths.resize(std::max(widths.size(), row.size()));
        for (qsizetype column = 0; column < row.size(); ++column)
            widths[column] = std::max(widths[column], LocaleText::characterCount(oneLine(row[column].text)));
    }
    QString text;
    for (const QList<Cell> &row : rows) {
        for (qsizetype column = 0; column < row.size(); ++column) {
            const Cell &cell = row[column];
            text += coloured(oneLine(cell.text), cell.colour);
            if (column + 1 < row.size())
                text += QString(widths[column] + gap - LocaleText::characterCount(oneLine(cell.text)), u' ');
        }
        text += u'\n';
    }
    return text;
}

void print(const QString &text)
{
    const QByteArray bytes = text.toUtf8();
    const auto size = static_cast<size_t>(bytes.size());
    if (std::fwrite(bytes.constData(), 1, size, stdout) != size || std::fflush(stdout) != 0)
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

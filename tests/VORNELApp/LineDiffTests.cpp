/// What the user is shown of two versions of a file.

#include <VORNELApp/Text/LineDiff.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace vornel {
namespace {

/// A line as "-3 text", "+3 text", " 3:4 text" or, for what stands for others, the text alone.
std::string written(const DiffLine &line)
{
    const std::string text = ' ' + line.text.toStdString() + '\n';
    switch (line.kind) {
    case DiffLine::Kind::added:
        return '+' + std::to_string(line.newNumber) + text;
    case DiffLine::Kind::removed:
        return '-' + std::to_string(line.oldNumber) + text;
    case DiffLine::Kind::context:
        return ' ' + std::to_string(line.oldNumber) + ':' + std::to_string(line.newNumber) + text;
    case DiffLine::Kind::hunk:
        break;
    }
    return text.substr(1);
}

std::string written(const std::optional<QList<DiffLine>> &lines)
{
    if (!lines)
        return "not a text";
    std::string all;
    for (const DiffLine &line : *lines)
        all += written(line);
    return all;
}

TEST(LineDiff, ShowsWhatDiffers)
{
    struct Case
    {
        const char *name;
        QByteArray before;
        QByteArray after;
        const char *lines;
    };
    const std::vector<Case> cases{
        {"nothing", "a\n", "a\n", ""},
        {"two empty texts", "", "", ""},
        {"a changed line", "a\nb\nc\n", "a\né\nc\n", " 1:1 a\n-2 b\n+2 é\n 3:3 c\n"},
        {"a new file", "", "a\nb\n", "+1 a\n+2 b\n"},
        {"an emptied file", "a\n", "", "-1 a\n"},
        {"three lines of context", "1\n2\n3\n4\nx\n", "1\n2\n3\n4\n", " 2:2 2\n 3:3 3\n 4:4 4\n-5 x\n"},
        {"distant changes", "a\n1\n2\n3\n4\n5\n6\n7\nb\n", "1\n2\n3\n4\n5\n6\n7\n",
         "-1 a\n 2:1 1\n 3:2 2\n 4:3 3\n⋯\n 6:5 5\n 7:6 6\n 8:7 7\n-9 b\n"},
        {"other line ends", "a\r\nb\n", "a\nb\n", "-1 a␍\n+1 a\n 2:2 b\n"},
        {"the same line ends", "a\r\nb\r\n", "a\r\nc\r\n", " 1:1 a\n-2 b␍\n+2 c␍\n"},
        {"a lost line end", "a\n", "a", "-1 a\n+1 a\n+0 Pas de saut de ligne à la fin du fichier\n"},
        {"a new line end", "a", "a\n", "-1 a\n-0 Pas de saut de ligne à la fin du fichier\n+1 a\n"},
        {"no line end on either side", "a", "b", "-1 a\n+1 b\n"},
        {"a null character", "a\n", QByteArray("a\0", 2), "not a text"},
        {"broken UTF-8", "caf\xE9", "a\n", "not a text"},
    };
    for (const Case &next : cases)
        EXPECT_EQ(written(lineDiff(next.before, next.after)), next.lines) << next.name;
}

QByteArray lines(int count)
{
    return QByteArray("x\n").repeated(count);
}

TEST(LineDiff, CutsALongResult)
{
    const QList<DiffLine> cut = *lineDiff({}, lines(6'234));
    EXPECT_EQ(cut.size(), 5'001);
    EXPECT_EQ(cut.at(4'999).newNumber, 5'000);
    EXPECT_EQ(written(cut.last()), "… 1\u202F234 autres lignes\n");
    EXPECT_EQ(written(lineDiff({}, lines(5'001))->last()), "… 1 autre ligne\n");
    EXPECT_EQ(lineDiff({}, lines(5'000))->last().newNumber, 5'000);
}

TEST(LineDiff, ComparesNoEndlessTexts)
{
    EXPECT_EQ(lineDiff(lines(100'000), lines(99'999) + "y\n")->size(), 5);
    EXPECT_EQ(written(lineDiff(lines(100'000), lines(100'001))), "Trop de lignes pour une comparaison\n");
}

} // namespace
} // namespace vornel

/// The colours of files by their type, from the first sight on and through every edit.

#include <VORNELApp/Text/CodeHighlighter.h>

#include <QTest>
#include <QTextDocument>
#include <QTextLayout>

#include <gtest/gtest.h>

#include <random>

using namespace Qt::StringLiterals;

namespace vornel {
namespace {

/// A file that is coloured, as far as it has been until now.
struct ColoredFile
{
    explicit ColoredFile(const QString &path, const QString &text = {}) : document(text)
    {
        document.documentLayout(); // without one, a document doesn't tell what changes
        highlighter.setProperty("commentColor", QColor(Qt::gray));
        highlighter.setProperty("stringColor", QColor(Qt::green));
        highlighter.setProperty("constantColor", QColor(Qt::yellow));
        highlighter.setProperty("keywordColor", QColor(Qt::cyan));
        highlighter.setProperty("nameColor", QColor(Qt::blue));
        highlighter.setPath(path);
        highlighter.setTextDocument(&document);
    }

    /// One letter for each character, its colour.
    QString marks() const
    {
        QStringList lines;
        for (QTextBlock line = document.begin(); line.isValid(); line = line.next()) {
            QString marks(line.length() - 1, u'.');
            for (const QTextLayout::FormatRange &range : line.layout()->formats())
                marks.replace(range.start, range.length,
                              QString(range.length, markOf(range.format.foreground().color())));
            lines.append(marks);
        }
        return lines.join(u'\n');
    }

    static QChar markOf(const QColor &color)
    {
        return color == Qt::gray     ? u'c'
               : color == Qt::green  ? u's'
               : color == Qt::yellow ? u'1'
               : color == Qt::cyan   ? u'k'
                                     : u'n';
    }

    testing::AssertionResult hasMarks(const QString &expected) const
    {
        if (QTest::qWaitFor([&] { return marks() == expected; }))
            return testing::AssertionSuccess();
        return testing::AssertionFailure() << document.toPlainText().toStdString() << '\n'
                                           << marks().toStdString() << "\nand not\n"
                                           << expected.toStdString();
    }

    void replace(int begin, int end, const QString &text)
    {
        QTextCursor cursor(&document);
        cursor.setPosition(begin);
        cursor.setPosition(end, QTextCursor::KeepAnchor);
        cursor.insertText(text);
    }

    QTextDocument document;
    CodeHighlighter highlighter;
};

TEST(CodeHighlighter, ColoursEachType)
{
    struct Sample
    {
        QString path;
        QString text;
        QString marks;
    };
    const QList<Sample> samples{
        {u"a/b.py"_s, u"def f(a): # x\n    return not g(\"é\", 12, None)"_s,
         u"kkk.n.....ccc\n....kkkkkk.kkk.n.sss..11..1111."_s},
        {u"a.sh"_s, u"if ls \"$a\"; then # x\n  b=1\nfi"_s, u"kk.nn.ssns..kkkk.ccc\n..n..\nkk"_s},
        {u"a.json"_s, u"{\"a\": [\"b\\n\", -1.5, true]}"_s, u".nnn...ss11s..1111..1111.."_s},
        {u"a.yaml"_s, u"# x\na: \"b\"\nc: [1, true]"_s, u"ccc\nn..sss\nn...1..1111."_s},
        {u"A.YML"_s, u"a: b c"_s, u"n..sss"_s},
        {u"a.js"_s, u"const a = f('b', /c/); // x"_s, u"kkkkk.....n.sss..sss...cccc"_s},
        {u"a.ts"_s, u"export type A = string | null;"_s, u"kkkkkk.kkkk.n...nnnnnn...1111."_s},
        {u"a.html"_s, u"<p id=\"a\">b</p><!-- x -->"_s, u".n.11..s.....n.cccccccccc"_s},
        {u"a.css"_s, u"p { color: #fff; } /* x */"_s, u"n...nnnnn..ssss....ccccccc"_s},
        {u"a.toml"_s, u"a = \"b\" # x\n[c]\nd = 1"_s, u"n...sss.ccc\n.n.\nn...1"_s},
        {u"run"_s, u"#!/usr/bin/env python3\nif a: pass"_s, u"cccccccccccccccccccccc\nkk....kkkk"_s},
        {u"a.txt"_s, u"#!/bin/sh\nif"_s, u".........\n.."_s},
        {u"LICENSE"_s, u"if"_s, u".."_s},
    };
    for (const Sample &sample : samples)
        EXPECT_TRUE(ColoredFile(sample.path, sample.text).hasMarks(sample.marks))
            << sample.path.toStdString();
}

TEST(CodeHighlighter, ColoursWhatAnEditChangesElsewhere)
{
    ColoredFile file(u"a.py"_s, u"x = 1\n#\"\"\"\nb = 'c'\n#\"\"\""_s);
    const QString before = u"....1\ncccc\n....sss\ncccc"_s;
    EXPECT_TRUE(file.hasMarks(before));
    const QString text = file.document.toRawText();
    const int steps = file.document.availableUndoSteps();
    file.document.setModified(false);
    file.replace(6, 7, {});
    EXPECT_TRUE(file.hasMarks(u"....1\nsss\nsssssss\nssss"_s));
    file.document.undo();
    EXPECT_TRUE(file.hasMarks(before));
    EXPECT_EQ(file.document.toRawText(), text);
    EXPECT_EQ(file.document.availableUndoSteps(), steps);
    EXPECT_FALSE(file.document.isModified());

    file.highlighter.setPath(u"a.txt"_s);
    EXPECT_TRUE(file.hasMarks(u".....\n....\n.......\n...."_s));
}

TEST(CodeHighlighter, ColoursAllOfALongText)
{
    ColoredFile file(u"a.json"_s);
    file.replace(0, 0, u"["_s + u"\"a\",\n"_s.repeated(1'000) + u"1]"_s);
    EXPECT_TRUE(file.hasMarks(u"."_s + u"sss.\n"_s.repeated(1'000) + u"1."_s));
    file.replace(0, 0, u"\n"_s);
    const QString marks = u"\n."_s + u"sss.\n"_s.repeated(1'000) + u"1."_s;
    EXPECT_TRUE(file.hasMarks(marks));

    file.replace(0, 0, u"["_s.repeated(66'000)); // which the library would not survive
    EXPECT_TRUE(file.hasMarks(u"."_s.repeated(66'000) + u"\n."_s + u"....\n"_s.repeated(1'000) + u".."_s));
    file.document.undo();
    EXPECT_TRUE(file.hasMarks(marks));
}

/// What can be said of them is only that the program goes on: their colours are nobody's concern.
TEST(CodeHighlighter, SurvivesWhatIsNestedDeep)
{
    for (const QString &suffix : {u"py"_s, u"sh"_s, u"yaml"_s, u"ts"_s, u"html"_s, u"css"_s, u"toml"_s}) {
        for (const QString &opening :
             {u"("_s, u"[\n"_s, u"{"_s, u"!"_s, u"<a>"_s, u"- "_s, u"`${"_s, u"a:{"_s}) {
            const qsizetype times = 49'000 / opening.size();
            ColoredFile file(u"a."_s + suffix, opening.repeated(times));
            QTest::qWait(20);
            file.replace(static_cast<int>(times) / 2, static_cast<int>(times) / 2 + 1, u"x\n"_s);
            QTest::qWait(20);
            EXPECT_GT(file.document.characterCount(), times);
        }
    }
}

TEST(CodeHighlighter, FollowsEveryEdit)
{
    const QStringList pieces{u"\n"_s,     u"\n    "_s, u"\""_s,         u"'"_s,
                             u"#"_s,      u"\"\"\""_s, u"{"_s,          u"}"_s,
                             u"["_s,      u"]"_s,      u": "_s,         u"if a:"_s,
                             u"1"_s,      u"é"_s,      u"\U0001F600"_s, QString(QChar(0xD83D)),
                             u"\u2028"_s, u"\t"_s,     u"<<E\n"_s,      u"- "_s,
                             u"/*"_s,     u"*/"_s,     u"<p>"_s,        u"</"_s,
                             u"`${"_s,    u"\\"_s,     QString()};
    std::mt19937 random(7); // NOLINT: the same edits at every run
    const auto pick = [&random](qsizetype bound) {
        return static_cast<int>(random() % static_cast<unsigned>(bound));
    };
    for (const QString &suffix :
         {u"py"_s, u"sh"_s, u"json"_s, u"yaml"_s, u"ts"_s, u"html"_s, u"css"_s, u"toml"_s}) {
        ColoredFile file(u"a."_s + suffix);
        for (int edit = 1; edit <= 200; ++edit) {
            const int length = file.document.characterCount() - 1;
            const int begin = pick(length + 1);
            const int end = std::min(length, begin + pick(edit % 5 == 0 ? 20 : 3));
            file.replace(begin, end, pieces.at(pick(pieces.size())));
            if (edit % 11 == 0)
                file.document.undo();
            if (edit % 20 == 0) {
                const ColoredFile other(u"a."_s + suffix, file.document.toRawText());
                EXPECT_TRUE(QTest::qWaitFor([&] { return file.marks() == other.marks(); }))
                    << suffix.toStdString() << ' ' << edit << '\n'
                    << file.document.toPlainText().toStdString();
            }
        }
    }
}

} // namespace
} // namespace vornel

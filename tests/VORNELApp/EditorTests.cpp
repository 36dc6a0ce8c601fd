/// What stands behind the editor: the text that is edited, its colours, and the tree of files.

#include <VORNELApp/Editor/SkillFileListModel.h>
#include <VORNELApp/Text/FaithfulText.h>
#include <VORNELApp/Text/MarkdownHighlighter.h>
#include <VORNELApp/Text/TextFinder.h>

#include <QAbstractItemModelTester>
#include <QTest>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextLayout>

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <ranges>

using namespace Qt::StringLiterals;

namespace vornel {
namespace {

/// Random edits, each done to the document and to a plain list of what a cursor can stand between.
struct Editing
{
    QStringList randomPieces(qsizetype count)
    {
        static const QStringList pieces{u"a"_s,      u"é"_s,      u"\u00A0"_s, u"\t"_s, u"\u2028"_s, u"\n"_s,
                                        u"\r\n"_s,   u"\r"_s,     u"\u2029"_s, u"b"_s,  u"\uFDD0"_s, u" "_s,
                                        u"\u202F"_s, u"\uFEFF"_s, u"\n"_s,     u"x"_s};
        QStringList chosen{u"."_s}; // no byte-order mark at the beginning, which the document doesn't hold
        for (qsizetype piece = 0; piece < count; ++piece) {
            const QString &next = pieces.at(pick(pieces.size()));
            chosen.append(chosen.last() == u"\r"_s && next == u"\n"_s ? u"n"_s : next); // or it would be one
        }
        return chosen;
    }

    qsizetype pick(qsizetype bound)
    {
        return static_cast<qsizetype>(random() % static_cast<unsigned>(bound));
    }

    std::mt19937 random{11}; // NOLINT: the same edits at every run
};

TEST(FaithfulText, ChangesWhatIsEditedAndNothingElse)
{
    Editing editing;
    for (int round = 0; round < 300; ++round) {
        QStringList expected = editing.randomPieces(editing.pick(30));
        const QString original = expected.join(QString());
        QTextDocument document;
        FaithfulText text(&document);
        text.begin(original);
        ASSERT_EQ(text.text(), original);
        ASSERT_FALSE(text.differsFrom(original));
        ASSERT_FALSE(document.isUndoAvailable());

        for (int edit = 0; edit < 20; ++edit) {
            const qsizetype begin = 1 + editing.pick(expected.size());
            const qsizetype end = std::min(begin + editing.pick(4), expected.size());
            QTextCursor cursor(&document);
            cursor.setPosition(static_cast<int>(begin));
            cursor.setPosition(static_cast<int>(std::max(begin, end)), QTextCursor::KeepAnchor);
            expected.remove(begin, std::max<qsizetype>(0, end - begin));
            if (edit % 2 == 0)
                expected.insert(begin, u"ï"_s);
            cursor.insertText(edit % 2 == 0 ? u"ï"_s : QString());
            ASSERT_EQ(text.text(), expected.join(QString())) << "round " << round;
            ASSERT_TRUE(text.differsFrom(original) || text.text() == original);
        }
        while (document.isUndoAvailable())
            document.undo();
        ASSERT_EQ(text.text(), original) << "round " << round;
        text.replace(u"autre\r\n"_s);
        ASSERT_EQ(text.text(), u"autre\r\n"_s);
    }
}

/// Every place of a text in another, found the long way.
QList<int> placesIn(const QString &whole, const QString &text)
{
    QList<int> places;
    for (qsizetype at = whole.indexOf(text, 0, Qt::CaseInsensitive); at >= 0;
         at = whole.indexOf(text, at + text.size(), Qt::CaseInsensitive))
        places.append(static_cast<int>(at));
    return places;
}

TEST(TextFinder, FollowsEveryEdit)
{
    Editing editing;
    QTextDocument document;
    document.documentLayout(); // without one, a document doesn't tell what changes
    TextFinder finder;
    finder.setText(u"x "_s);
    finder.setTextDocument(&document);
    for (int edit = 0; edit < 3'000; ++edit) {
        QTextCursor cursor(&document);
        cursor.setPosition(static_cast<int>(editing.pick(document.characterCount())));
        const qsizetype end = cursor.position() + editing.pick(6);
        cursor.setPosition(static_cast<int>(std::min<qsizetype>(end, document.characterCount() - 1)),
                           QTextCursor::KeepAnchor);
        static const QStringList pieces{u"x"_s,      u"X\u00A0"_s,  u" "_s,   u"\n"_s,
                                        u"x x x "_s, u"a\nx \nb"_s, QString()};
        cursor.insertText(pieces.at(editing.pick(pieces.size())));
        if (edit % 7 == 0)
            document.undo();
        ASSERT_EQ(finder.places(), placesIn(document.toPlainText(), u"x "_s)) << "edit " << edit;
    }
    ASSERT_GT(finder.count(), 2);
    const QList<int> places = finder.places();
    EXPECT_EQ(finder.next(places.at(1)), places.at(1));
    EXPECT_EQ(finder.next(places.last() + 1), places.first());
    EXPECT_EQ(finder.previous(places.at(1) + 2), places.at(1));
    EXPECT_EQ(finder.previous(places.first()), places.last());
    EXPECT_EQ(finder.ordinal(places.at(1), places.at(1) + 2), 2);
    EXPECT_EQ(finder.ordinal(places.at(1), places.at(1) + 1), 0);
}

TEST(MarkdownHighlighter, KnowsWhereItIs)
{
    const QStringList lines{
        u"---"_s,          u"name: x"_s, u"---"_s, u"# Titre"_s, u"*mot* `code` mot"_s,
        u"``` sh"_s,       u"# ls"_s,    u"```"_s, u"- point"_s, u"2 * 3 * 4 snake_case_name"_s,
        u"[lien](a) _m_"_s};
    QTextDocument document(lines.join(u'\n'));
    MarkdownHighlighter highlighter;
    highlighter.setProperty("headingColor", QColor(Qt::cyan));
    highlighter.setProperty("codeColor", QColor(Qt::green));
    highlighter.setProperty("linkColor", QColor(Qt::blue));
    highlighter.setProperty("markColor", QColor(Qt::gray));
    highlighter.setDocument(&document);
    highlighter.rehighlight();

    /// One letter for each character: its colour, or its style.
    const auto marks = [&document](int line) {
        const QTextBlock block = document.findBlockByNumber(line);
        QString found(block.length() - 1, u'.');
        for (const QTextLayout::FormatRange &range : block.layout()->formats()) {
            const QColor color = range.format.foreground().color();
            const bool isColored = range.format.hasProperty(QTextFormat::ForegroundBrush);
            const QChar mark = isColored                   ? color == Qt::cyan    ? u'h'
                                                             : color == Qt::green ? u'c'
                                                             : color == Qt::blue  ? u'l'
                                                                                  : u'm'
                               : range.format.fontItalic() ? u'i'
                                                           : u'b';
            found.replace(range.start, range.length, QString(range.length, mark));
        }
        return found;
    };
    const QStringList expected{
        u"mmm"_s,          u"llllmmm"_s, u"mmm"_s, u"hhhhhhh"_s, u"iiiii.cccccc...."_s,
        u"cccccc"_s,       u"cccc"_s,    u"ccc"_s, u"h......"_s, u"........................."_s,
        u"lllllllll.iii"_s};
    for (int line = 0; line < lines.size(); ++line)
        EXPECT_EQ(marks(line), expected.at(line)) << lines.at(line).toStdString();
}

TEST(MarkdownHighlighter, ColoursAllOfALongText)
{
    QTextDocument document(u"# Titre\n"_s.repeated(900));
    document.documentLayout(); // without one, a document doesn't tell what changes
    MarkdownHighlighter highlighter;
    highlighter.setProperty("headingColor", QColor(Qt::cyan));
    highlighter.setDocument(&document);
    const auto isColored = [&document](int number) {
        const QTextBlock line = document.findBlockByNumber(number);
        return line.length() == 1 || !line.layout()->formats().isEmpty();
    };
    const auto awaitAll = [&] {
        return QTest::qWaitFor(
            [&] { return std::ranges::all_of(std::views::iota(0, document.blockCount()), isColored); });
    };
    ASSERT_TRUE(QTest::qWaitFor([&] { return isColored(0); }));
    ASSERT_FALSE(isColored(800)) << "the first slice is done, the rest is to come";
    QTextCursor cursor(&document);
    cursor.select(QTextCursor::Document);
    cursor.insertText(u"# Autre\n"_s.repeated(1000));
    EXPECT_TRUE(awaitAll()) << "replaced while it is being coloured";

    cursor.beginEditBlock(); // which counts as a change of every line between
    cursor.insertText(u"# fin"_s);
    cursor.movePosition(QTextCursor::Start);
    cursor.insertText(u"# "_s);
    cursor.endEditBlock();
    EXPECT_TRUE(awaitAll()) << "changed at both ends at once";
}

TEST(SkillFileListModel, NestsFilesAndOpensFolders)
{
    SkillFileListModel model;
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    const auto rows = [&model] {
        QStringList found;
        const QHash<int, QByteArray> roles = model.roleNames();
        for (int row = 0; row < model.rowCount(); ++row) {
            const auto value = [&](const char *role) {
                return model.data(model.index(row), roles.key(role));
            };
            found.append(QString(value("depth").toInt(), u'>') + value("name").toString() + u' ' +
                         value("symbol").toString());
        }
        return found;
    };
    model.setRelativeFiles(
        {u"SKILL.md"_s, u"a/b/c.py"_s, u"a/d.JSON"_s, u"a.webp"_s, u"z/LICENSE"_s, u"z/png"_s});
    EXPECT_EQ(rows(), (QStringList{u"SKILL.md file-text"_s, u"a folder-open"_s, u">b folder-open"_s,
                                   u">>c.py file-code"_s, u">d.JSON file-braces"_s, u"a.webp image"_s,
                                   u"z folder-open"_s, u">LICENSE file"_s, u">png file"_s}));
    model.setOpen(2, false);
    model.setOpen(1, false);
    model.setOpen(0, true);
    EXPECT_EQ(rows(), (QStringList{u"SKILL.md file-text"_s, u"a folder"_s, u"a.webp image"_s,
                                   u"z folder-open"_s, u">LICENSE file"_s, u">png file"_s}));
    model.setOpen(1, true);
    EXPECT_EQ(rows().mid(1, 3), (QStringList{u"a folder-open"_s, u">b folder"_s, u">d.JSON file-braces"_s}));

    QStringList many;
    for (int number = 0; number < 1000; ++number)
        many.append(u"folder%1/file"_s.arg(number));
    model.setRelativeFiles(many);
    EXPECT_EQ(model.rowCount(), 1000) << "the folders of a large skill begin closed";
}

} // namespace
} // namespace vornel

/// How the conflicts of a merge are settled, and what a text has to be for it.

#include <VORNELApp/Copies/ConflictList.h>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace vornel {
namespace {

MergeConflict conflict(const QString &path, const QString &basis, const QString &markedText)
{
    return {path, basis, markedText};
}

TEST(ConflictList, TakesATextOnceNoMarkIsLeftInIt)
{
    const QString marked =
        u"Titre\r\n=======\r\n<<<<<<< Claude\r\nun\r\n=======\r\ndeux\r\n>>>>>>> Codex\r\n"_s;
    ConflictList list;
    list.begin({conflict(u"a"_s, u"1"_s, marked)});
    list.choose(0, ConflictList::Text);
    const QString settled = u"Titre\r\n=======\r\nun\r\n"_s;
    for (const QString &text :
         {marked, u"<<<<<<< Claude\nun\n"_s, u"un\n>>>>>>> Codex"_s, settled + u"=======\r\ndeux\r\n"_s}) {
        list.setText(0, text);
        EXPECT_EQ(list.openCount(), 1) << text.toStdString();
        EXPECT_TRUE(list.settlements().isEmpty());
    }
    for (const QString &text : {settled, u"<<<<<<< HEAD est la marque d’un autre programme"_s, QString()}) {
        list.setText(0, text);
        ASSERT_EQ(list.settlements().size(), 1) << text.toStdString();
        EXPECT_EQ(std::get<QString>(list.settlements().first().content), text);
    }
}

TEST(ConflictList, KeepsWhatIsSettledForAsLongAsTheConflictIsTheSame)
{
    ConflictList list;
    list.begin({conflict(u"a"_s, u"1"_s, u"x"_s), conflict(u"b"_s, u"1"_s, u"x"_s)});
    list.choose(0, ConflictList::Claude);
    list.choose(1, ConflictList::Codex);
    list.add({conflict(u"b"_s, u"2"_s, u"y"_s), conflict(u"aa"_s, u"1"_s, u"y"_s)});
    ASSERT_EQ(list.count(), 3);
    EXPECT_EQ(list.data(list.index(1), Qt::UserRole), u"aa"_s);
    EXPECT_EQ(list.text(2), u"y"_s);
    ASSERT_EQ(list.settlements().size(), 1);
    EXPECT_EQ(std::get<TargetKind>(list.settlements().first().content), TargetKind::claude);

    list.begin({}); // that of another skill
    list.begin({conflict(u"a"_s, u"1"_s, u"x"_s)});
    EXPECT_EQ(list.openCount(), 0);
    list.begin({conflict(u"a"_s, u"2"_s, u"x"_s)});
    EXPECT_EQ(list.openCount(), 1);
}

} // namespace
} // namespace vornel

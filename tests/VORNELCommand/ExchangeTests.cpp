#include "Vornelctl.h"

#include <VORNELCore/Records/SerializedForms.h>

#include <QJsonArray>

using namespace Qt::StringLiterals;

namespace vornel {
namespace {

TEST_F(Vornelctl, ExportsIntoAFileOrAPipe)
{
    ASSERT_EQ(run("create demo --name Démo").code, 0);
    const QJsonObject written = run("export demo --to demo.zip --json").json().object();
    EXPECT_EQ(written[u"file"], pathText(path("demo.zip")));
    EXPECT_EQ(written[u"slugs"], QJsonArray{u"demo"_s});
    const std::string archive = bytesOf(path("demo.zip"));
    EXPECT_EQ(run("export demo --to -").output.toStdString(), archive);
    EXPECT_EQ(run("export demo --to demo.zip --json").error()[u"error"], u"fileSystem"_s);
    EXPECT_EQ(bytesOf(path("demo.zip")), archive);
    EXPECT_EQ(run("export rien --to a.zip --json").error()[u"error"], u"skillNotFound"_s);
    for (const char *line : {"export demo", "export --to a.zip", "export demo --to - --json"})
        EXPECT_EQ(run(line).code, 64) << line;
}

TEST_F(Vornelctl, AddsFoldersArchivesAndPipes)
{
    write("given/demo/SKILL.md", "un");
    write("given/other/SKILL.md", "deux");
    const QJsonArray planned = run("add given --dry-run --json").json().array();
    ASSERT_EQ(planned.size(), 2);
    EXPECT_EQ(planned.first().toObject().keys(),
              (QStringList{u"choice"_s, u"differences"_s, u"digest"_s, u"kind"_s, u"revision"_s, u"slug"_s}));
    EXPECT_EQ(planned[0][u"kind"], u"added"_s);
    EXPECT_EQ(run("list --json").json().array().size(), 0);
    write("codex/demo/notes.txt", "theirs");
    EXPECT_EQ(run("add given --json").error()[u"error"], u"targetOccupied"_s);
    EXPECT_EQ(run("add given --replace").output,
              QByteArray("demo   révision 1  à jour\nother  révision 1  à jour\n"));
    const QByteArray archive = run("export demo other --to -").output;

    ASSERT_EQ(run("save demo --expect 1 --file -", "trois").code, 0);
    const Result undecided = run("add -", archive);
    EXPECT_EQ(undecided.code, 2);
    EXPECT_TRUE(undecided.errors.startsWith(
        "À choisir avec --choose IDENTIFIANT=library|added ou --prefer\u00A0: demo\n"));
    EXPECT_EQ(run("add - --choose rien=added --json", archive).error()[u"error"], u"collisionNotFound"_s);
    EXPECT_EQ(
        run("add - --prefer added --dry-run", archive).output,
        QByteArray("demo   révision 3\n       ~ SKILL.md\nother  déjà dans la bibliothèque, identique\n"));
    EXPECT_EQ(run("add - --choose demo=library --json", archive).json()[0][u"skillMD"], u"trois"_s);
    EXPECT_EQ(run("add - --choose demo=added --json", archive).json()[0][u"skillMD"], u"un"_s);

    EXPECT_EQ(run("add - --json", "no archive").error()[u"error"], u"integrityFailure"_s);
    EXPECT_EQ(run("add nowhere --json").error()[u"error"], u"fileSystem"_s);
    for (const char *line : {"add", "add given --choose demo=codex", "add given --prefer both"})
        EXPECT_EQ(run(line).code, 64) << line;
}

} // namespace
} // namespace vornel

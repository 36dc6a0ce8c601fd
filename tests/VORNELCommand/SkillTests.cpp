#include "Vornelctl.h"

#include <VORNELCore/Records/SerializedForms.h>

#include <QJsonArray>

using namespace Qt::StringLiterals;

namespace vornel {
namespace {

TEST_F(Vornelctl, CarriesASkillThroughItsLife)
{
    const QByteArray text = "\xEF\xBB\xBF# Déjà\xC2\xA0vu\r\n\r\nsans fin";
    const Result created = run("create demo --name Démo --tags b,a --file - --json", text);
    ASSERT_EQ(created.code, 0) << created.errors.constData();
    EXPECT_EQ(bytesOf(path("codex/demo/SKILL.md")), text.toStdString());
    const QJsonObject manifest = created.json()[u"manifest"].toObject();
    EXPECT_EQ(manifest[u"category"], u"other"_s);
    EXPECT_EQ(manifest[u"maturity"], u"draft"_s);
    EXPECT_EQ(manifest[u"tags"], (QJsonArray{u"a"_s, u"b"_s}));
    const QString id = manifest[u"id"].toString();
    ASSERT_TRUE(uuidFromText(id));

    const QString file = pathText(write("text", "nouveau"));
    EXPECT_EQ(run({u"save"_s, id, u"--expect"_s, u"1"_s, u"--file"_s, file}).code, 0);
    const Result stale = run("save demo --expect 1 --file text --json");
    EXPECT_EQ(stale.code, 2);
    EXPECT_EQ(stale.error()[u"message"], u"Révision obsolète (attendue 1, actuelle 2)."_s);
    EXPECT_EQ(stale.errors.count('\n'), 1);
    EXPECT_EQ(run("show demo --json").json()[u"skillMD"], u"nouveau"_s);

    EXPECT_EQ(run("assign design demo").code, 0);
    EXPECT_EQ(run("list --category DESIGN --search nouv --json").json().array().size(), 0);
    EXPECT_EQ(run("list --category DESIGN --search demo --maturity draft --json").json().array().size(), 1);
    const QJsonObject category = run({u"category"_s, u"create"_s, u"Équipe"_s, u"#a1b2c3"_s, u"--json"_s})
                                     .json()[u"categories"][6]
                                     .toObject();
    EXPECT_EQ(category[u"id"], u"equipe"_s);
    EXPECT_EQ(run("category --json update equipe -- Groupe 000000").json()[u"categories"][6][u"name"],
              u"Groupe"_s);
    EXPECT_EQ(run("category -- delete equipe").code, 0);

    const Result set = run("set demo --name Autre --add-tags c --maturity ready --slug autre --json");
    EXPECT_EQ(set.json()[0][u"manifest"][u"tags"], (QJsonArray{u"a"_s, u"b"_s, u"c"_s}));
    EXPECT_EQ(run("list --tag C,a --sort updated --json").json()[0][u"slug"], u"autre"_s);
    EXPECT_EQ(run("list --tag c,d --sort name --json").json().array().size(), 0);
    EXPECT_EQ(run("set autre").code, 64);
    EXPECT_EQ(run("set autre autre2 --name x --expect 1").code, 2);
    EXPECT_EQ(run("set autre --slug demo --name Démo --maturity draft").output, "demo  révision 5  à jour\n");

    EXPECT_EQ(run("trash demo").code, 0);
    EXPECT_EQ(run("show demo").code, 2);
    EXPECT_EQ(run("list --json").json().array().size(), 0);
    EXPECT_EQ(run("list --trash --category design --json").json()[0][u"slug"], u"demo"_s);
    EXPECT_EQ(run("list --trash --search rien --json").json().array().size(), 0);
    EXPECT_TRUE(run("list --trash").output.startsWith("demo  Démo  Design  Brouillon  20"));
    EXPECT_EQ(run("restore demo").code, 0);

    // Columns are aligned by what a terminal shows: two columns for a wide letter, none for an accent.
    EXPECT_EQ(run("create wide --name 漢字 --file text").code, 0);
    EXPECT_EQ(run("create mark --name re\u0301vue --file text").code, 0);
    const QByteArray listed = run("list").output;
    for (const char *row : {"demo  Démo   Design  ", "wide  漢字   Autre   ", "mark  re\u0301vue  Autre   "})
        EXPECT_TRUE(listed.contains(row)) << row << listed.constData();
    EXPECT_EQ(run("trash wide mark").code, 0);
    EXPECT_EQ(run("trash demo --json").json()[u"trashedSkills"].toArray().size(), 3);
    EXPECT_EQ(run("delete demo").code, 0);
    EXPECT_EQ(run("empty-trash --json").json()[u"trashedSkills"].toArray().size(), 0);
}

TEST_F(Vornelctl, ChangesFiles)
{
    ASSERT_EQ(run("create demo --name Démo").code, 0);
    const QByteArray bytes("\0\xFF\r\n", 4);
    EXPECT_EQ(run("put demo docs/data.bin --file - --expect 1", bytes).output, "demo  révision 2  à jour\n");
    write("text", "Démo sans fin");
    EXPECT_EQ(run("put demo SKILL.md --file text --expect 2 --json").json()[u"skillMD"], u"Démo sans fin"_s);
    EXPECT_EQ(run("mkdir demo a b/c --expect 3").code, 0);
    EXPECT_EQ(run("mv demo docs/data.bin b/c/moved --expect 4").code, 0);
    EXPECT_EQ(run("cat demo b/c/moved").output, bytes);
    EXPECT_EQ(run("cat demo").output, "Démo sans fin");
    const QJsonObject file = run("cat demo b/c/moved --json").json().object();
    EXPECT_EQ(file, (QJsonObject{{u"content"_s, u"AP8NCg=="_s},
                                 {u"encoding"_s, u"base64"_s},
                                 {u"path"_s, u"b/c/moved"_s},
                                 {u"size"_s, 4}}));
    EXPECT_EQ(run("cat demo --json").json()[u"content"], u"Démo sans fin"_s);
    EXPECT_EQ(run("rm demo a docs b/ --expect 5 --json").json()[u"relativeFiles"],
              (QJsonArray{u"SKILL.md"_s, u"vornel.json"_s}));
    EXPECT_EQ(tree("codex/demo"), (Tree{{"SKILL.md", "Démo sans fin"}}));

    EXPECT_EQ(run("rm demo SKILL.md --expect 5 --json").error()[u"error"], u"revisionConflict"_s);
    EXPECT_EQ(run("rm demo SKILL.md --expect 6 --json").error()[u"error"], u"integrityFailure"_s);
    EXPECT_EQ(run("put demo ../out --file text --expect 6 --json").error()[u"error"], u"invalidPath"_s);
    EXPECT_EQ(run("put demo x --file nowhere --expect 6 --json").error()[u"error"], u"fileSystem"_s);
    EXPECT_EQ(run("cat demo a --json").error()[u"error"], u"fileNotFound"_s);
    EXPECT_EQ(run("put demo a/x --file text y --file - --expect 6", bytes).output,
              "demo  révision 7  à jour\n");
    EXPECT_EQ(tree("codex/demo"), (Tree{{"SKILL.md", "Démo sans fin"},
                                        {"a/", ""},
                                        {"a/x", "Démo sans fin"},
                                        {"y", bytes.toStdString()}}));
    for (const char *line :
         {"put demo x --file text", "put demo x y --file text --expect 7",
          "put demo x --file text --file text --expect 7", "put demo x x --file text --file text --expect 7",
          "put demo x y --file - --file - --expect 7", "rm demo --expect 6", "mv demo x --expect 6", "cat"})
        EXPECT_EQ(run(line).code, 64) << line;
}

TEST_F(Vornelctl, DuplicatesASkill)
{
    ASSERT_EQ(run("create demo --name Démo --category design").code, 0);
    write("codex/other/notes.txt", "theirs");
    EXPECT_EQ(run("duplicate demo other --json").error()[u"error"], u"targetOccupied"_s);
    const QJsonObject copy = run("duplicate demo other --replace --json").json()[u"manifest"].toObject();
    EXPECT_EQ(copy[u"displayName"], u"Démo (copie)"_s);
    EXPECT_EQ(copy[u"category"], u"design"_s);
    EXPECT_EQ(run("duplicate demo third --name Trois").output, "third  révision 1  à jour\n");
    EXPECT_EQ(tree("codex/third"), tree("codex/demo"));
    EXPECT_EQ(run("duplicate demo other --json").error()[u"error"], u"duplicateSlug"_s);
}

} // namespace
} // namespace vornel

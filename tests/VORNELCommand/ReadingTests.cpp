#include "Vornelctl.h"

#include <QJsonArray>

using namespace Qt::StringLiterals;

namespace vornel {
namespace {

TEST_F(Vornelctl, ListsWhatDiffersInTheCopies)
{
    ASSERT_EQ(run("create demo --name Démo --file -", "texte").code, 0);
    EXPECT_EQ(run("diff demo").code, 0);
    write("codex/demo/SKILL.md", "autre");
    write("codex/demo/notes/plus.txt", "x");
    fs::remove_all(path("home/.claude/skills/demo"));
    const Result text = run("diff demo");
    EXPECT_EQ(text.code, 1);
    EXPECT_EQ(text.output, QByteArray("Claude  copie manquante\n"
                                      "Codex   copie modifiée\n"
                                      "        ~ SKILL.md\n"
                                      "        + notes/plus.txt\n"));
    const Result json = run("diff demo --json");
    EXPECT_EQ(json.code, 1);
    EXPECT_EQ(json.json()[0][u"state"], u"missing"_s);
    EXPECT_EQ(json.json()[1][u"target"], u"codex"_s);
    EXPECT_EQ(json.json()[1][u"differences"][1][u"change"], u"added"_s);
    EXPECT_EQ(run("diff rien").code, 2);
}

TEST_F(Vornelctl, TellsWhoHasChangedWhat)
{
    ASSERT_EQ(run("create edited --name E --file -", "texte").code, 0);
    ASSERT_EQ(run("create ours --name O --file -", "texte").code, 0);
    write("codex/edited/SKILL.md", "autre");
    write("ws/skills/ours/SKILL.md", "autre");
    EXPECT_TRUE(run("status").output.contains("edited  Codex a modifié 1 fichier\nours    copie périmée\n"));
    EXPECT_TRUE(run("list").output.endsWith("copie périmée\n"));
    EXPECT_TRUE(run("show ours").output.contains("copie périmée\n"));
    EXPECT_TRUE(
        run("diff ours")
            .output.startsWith("Claude  copie périmée\n"
                               "        rien n’y a été modifié, c’est le dossier de VORNEL qui a changé\n"
                               "        ~ SKILL.md\n"));
    EXPECT_EQ(run("diff ours --json").json()[0][u"drift"], u"outdated"_s);
    EXPECT_EQ(run("status --json").json()[u"skills"][0][u"drift"], u"edited"_s);
    EXPECT_EQ(run("list --json").json()[1][u"drift"], u"outdated"_s);
    EXPECT_EQ(run("show ours --json").json()[u"drift"], u"outdated"_s);
    EXPECT_EQ(run("sync ours --json").json()[0][u"drift"], QJsonValue::Undefined);
}

TEST_F(Vornelctl, ChecksWhatAssistantsWillRead)
{
    EXPECT_EQ(run("check").output, "Aucun problème\n");
    ASSERT_EQ(run("create alpha --name A --file -", "---\nname: alpha\ndescription: x\n---\n").code, 0);
    ASSERT_EQ(run("create beta --name B --file -", "---\nname: gamma\nmodel: x\n---\n").code, 0);
    write("ws/skills/alpha/notes.md", "x");

    const Result hints = run("check alpha --json");
    EXPECT_EQ(hints.code, 0) << hints.errors.constData();
    ASSERT_EQ(hints.json().array().size(), 1);
    const QJsonObject hint = hints.json()[0].toObject();
    EXPECT_EQ(hint.keys(),
              (QStringList{u"line"_s, u"message"_s, u"path"_s, u"rule"_s, u"severity"_s, u"slug"_s}));
    EXPECT_EQ(hint[u"severity"], u"hint"_s);
    EXPECT_EQ(hint[u"line"], 0);

    const Result all = run("check");
    EXPECT_EQ(all.code, 1);
    EXPECT_TRUE(all.output.startsWith("alpha (1)\n  conseil  notes.md  file-unmentioned  "))
        << all.output.constData();
    EXPECT_TRUE(all.output.contains("\n\nbeta (3)\n  erreur   SKILL.md:1  description-missing  "))
        << all.output.constData();
    EXPECT_TRUE(all.output.endsWith("\n\n2 erreurs, 2 conseils\n"));
    EXPECT_EQ(run("check beta alpha --json").json().array().size(), 4);
    EXPECT_EQ(run("check alpha rien").code, 2);
    EXPECT_EQ(run("check --all").code, 64);
}

} // namespace
} // namespace vornel

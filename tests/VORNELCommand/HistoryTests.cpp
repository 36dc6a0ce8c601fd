#include "Vornelctl.h"

#include <QJsonArray>

using namespace Qt::StringLiterals;

namespace vornel {
namespace {

TEST_F(Vornelctl, AdoptsAndMergesWhatAssistantsHaveWritten)
{
    ASSERT_EQ(run("create demo --name Démo --file -", "base\n").code, 0);
    write("codex/demo/notes.md", "de Codex");
    EXPECT_EQ(run("adopt demo codex --expect 2 --json").error()[u"error"], u"revisionConflict"_s);
    EXPECT_EQ(run("adopt demo library --file notes.md").code, 64);
    EXPECT_EQ(run("adopt demo codex --expect 1 --file rien.md").code, 2);
    EXPECT_EQ(run("adopt demo codex --expect 1 --json").json()[u"manifest"][u"revision"], 2);
    EXPECT_EQ(bytesOf(path("home/.claude/skills/demo/notes.md")), "de Codex");

    write("codex/demo/SKILL.md", "codex\n");
    write("home/.claude/skills/demo/SKILL.md", "claude\n");
    const Result merge = run("merge demo --json");
    EXPECT_EQ(merge.code, 1);
    EXPECT_EQ(merge.json().object(),
              (QJsonObject{{u"conflicts"_s, QJsonArray{u"SKILL.md"_s}}, {u"skill"_s, QJsonValue::Null}}));
    EXPECT_TRUE(run("merge demo").output.startsWith("En conflit (1)\n"));
    EXPECT_EQ(run("show demo --json").json()[u"skillMD"], u"base\n"_s);
    const Result preferring = run("merge demo --prefer claude --json");
    EXPECT_EQ(preferring.code, 0);
    EXPECT_EQ(preferring.json()[u"skill"][u"skillMD"], u"claude\n"_s);

    write("ws/skills/demo/SKILL.md", "à la main");
    EXPECT_TRUE(run("status").output.endsWith("Modifiée à la main\u00A0: demo\n"));
    EXPECT_EQ(run("status --json").json()[u"editedByHand"], QJsonArray{u"demo"_s});
    EXPECT_EQ(run("adopt demo library").code, 0);
    EXPECT_EQ(run("show demo --json").json()[u"manifest"][u"revision"], 4);
    EXPECT_EQ(run("status").code, 0);
}

TEST_F(Vornelctl, BringsBackWhatTheHistoryHolds)
{
    ASSERT_EQ(run("create demo --name Démo --file -", "un\n").code, 0);
    ASSERT_EQ(run("save demo --expect 1 --file -", "deux\n").code, 0);
    write("codex/demo/notes.md", "de Codex");
    ASSERT_EQ(run("sync demo").code, 0);

    const QJsonArray versions = run("history demo --json").json().array();
    ASSERT_EQ(versions.size(), 3);
    const QJsonObject replaced = versions[0].toObject();
    EXPECT_EQ(replaced.keys(), (QStringList{u"date"_s, u"digest"_s, u"entry"_s, u"isCurrent"_s, u"kind"_s,
                                            u"origin"_s, u"revision"_s}));
    EXPECT_EQ(replaced[u"kind"], u"replaced"_s);
    EXPECT_EQ(replaced[u"origin"], u"codex"_s);
    EXPECT_EQ(versions[1][u"isCurrent"], true);
    EXPECT_TRUE(run("history demo").output.contains("  révision 2 (actuelle)  "));

    const QByteArray added = run("diff demo --entry 2 --with replaced-codex").output;
    EXPECT_EQ(added, "+ notes.md\n");
    EXPECT_EQ(run("diff demo --entry 2").code, 0);
    EXPECT_EQ(run("diff demo --entry 1 --json").json()[u"differences"][0][u"relativePath"], u"SKILL.md"_s);
    EXPECT_EQ(run("diff demo --with 1").code, 64);
    EXPECT_EQ(run("revert demo 7 --expect 2 --json").error()[u"error"], u"versionNotFound"_s);
    EXPECT_EQ(run("revert demo 1 --expect 1 --json").error()[u"error"], u"revisionConflict"_s);
    EXPECT_EQ(run("revert demo replaced-codex --expect 2 --file notes.md").code, 0);
    EXPECT_EQ(bytesOf(path("codex/demo/notes.md")), "de Codex");
    EXPECT_EQ(run("revert demo 1 --expect 3 --json").json()[u"skillMD"], u"un\n"_s);

    for (const char *line : {"history", "history --prune", "history demo --keep 1", "history --prune demo",
                             "history --prune --keep -1", "history --prune --older-than 3m"})
        EXPECT_EQ(run(line).code, 64) << line;
    EXPECT_EQ(run("history --prune --older-than 90d --json").json()[u"entries"], 0);
    EXPECT_TRUE(
        run("history --prune --keep 1 --dry-run").output.startsWith("À supprimer\u00A0: 3 versions, "));
    EXPECT_EQ(run("history --prune --keep 1 --json").json()[u"entries"], 3);
    EXPECT_EQ(run("history demo --json").json().array().size(), 2);
}

TEST_F(Vornelctl, BringsBackWhatWasSetAside)
{
    EXPECT_EQ(run("create demo --name Démo").code, 0);
    EXPECT_EQ(run("recovery list").output, QByteArray("Aucune copie mise de côté\n"));
    const std::string recovery = "ws/.vornel/recovery/";
    for (const char *name : {"AAAAAAAA-0000-4000-8000-000000000001-removed-claude-demo",
                             "AAAAAAAA-0000-4000-8000-000000000002-codex-demo", "replaced-codex-odd"})
        write(recovery + name + "/SKILL.md", "retrouvé");
    write(recovery + "file", "x");

    const QJsonArray listed = run("recovery list --json").json().array();
    ASSERT_EQ(listed.size(), 4);
    EXPECT_EQ(listed.first().toObject().keys(), (QStringList{u"date"_s, u"fileCount"_s, u"id"_s, u"origin"_s,
                                                             u"reason"_s, u"size"_s, u"slug"_s}));
    const QByteArray table = run("recovery list").output;
    for (const char *part : {"AAAAAAAA-0000-4000-8000-000000000001  demo  Claude  20", "replaced  ",
                             "1 fichier, 1 octet   C’est un fichier.\n"})
        EXPECT_TRUE(table.contains(part)) << part << '\n' << table.constData();

    EXPECT_EQ(run("recovery restore aaaa --json").error()[u"error"], u"copyAmbiguous"_s);
    EXPECT_EQ(run("recovery restore b --json").error()[u"error"], u"copyNotFound"_s);
    EXPECT_EQ(run("recovery restore AAAAAAAA-0000-4000-8000-000000000001 --json").error()[u"error"],
              u"duplicateSlug"_s);
    for (const char *line : {"recovery restore replaced", "recovery restore replaced --expect 1",
                             "recovery restore replaced --into demo --slug x", "recovery"})
        EXPECT_EQ(run(line).code, 64) << line;

    const Result revised =
        run("recovery restore AAAAAAAA-0000-4000-8000-000000000001 --into demo --expect 1 --json");
    EXPECT_EQ(revised.json()[u"manifest"][u"revision"], 2);
    write("codex/autre/notes.txt", "theirs");
    EXPECT_EQ(run("recovery restore aaaa --slug autre --json").error()[u"error"], u"targetOccupied"_s);
    EXPECT_EQ(run("recovery restore aaaa --slug autre --replace").output,
              QByteArray("autre  révision 1  à jour\n"));
    EXPECT_EQ(run("recovery delete rien file").code, 2);
    EXPECT_EQ(run("recovery delete replaced file --json").output, QByteArray("[\n]\n"));
}

} // namespace
} // namespace vornel

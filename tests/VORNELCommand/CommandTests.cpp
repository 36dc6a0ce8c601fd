#include "Vornelctl.h"

#include <VORNELCore/Records/SerializedForms.h>

#include <QJsonArray>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace vornel {
namespace {

TEST_F(Vornelctl, ImportsRealFolders)
{
    write("home/.claude/skills/left/SKILL.md", "name: Gauche");
    write("home/.claude/skills/clash/SKILL.md", "claude");
    write("codex/clash/SKILL.md", "codex");
    write("codex/Bad_Name/SKILL.md", "x");

    const QJsonObject plan = run("--json scan").json().object();
    EXPECT_EQ(plan[u"candidates"][0][u"slug"], u"left"_s);
    EXPECT_EQ(plan[u"candidates"][0][u"sourceURL"], pathText(path("home/.claude/skills/left")));
    EXPECT_EQ(plan[u"collisions"][0][u"choice"], QJsonValue::Null);
    EXPECT_EQ(plan[u"blocked"][0][u"reason"], u"invalidPath"_s);

    const Result compared = run("compare clash");
    EXPECT_EQ(compared.code, 1);
    EXPECT_TRUE(compared.output.startsWith("Claude  1 fichier  6 octets  20")) << compared.output.constData();
    EXPECT_TRUE(compared.output.endsWith("\n~ SKILL.md\n"));
    const QJsonObject codex = run("compare clash --json").json()[u"codex"].toObject();
    EXPECT_EQ(codex.keys(),
              (QStringList{u"fileCount"_s, u"isNewer"_s, u"modifiedAt"_s, u"size"_s, u"target"_s}));
    EXPECT_EQ(run("compare left --json").error()[u"folder"], pathText(path("codex/left")));
    EXPECT_EQ(run("compare Bad_Name --json").error()[u"error"], u"invalidPath"_s);

    const Result undecided = run("import --json");
    EXPECT_EQ(undecided.code, 2);
    EXPECT_TRUE(undecided.output.isEmpty());
    EXPECT_EQ(undecided.error()[u"error"], u"unresolvedCollisions"_s);
    EXPECT_EQ(run("import --json --choose nothing=claude").error()[u"error"], u"collisionNotFound"_s);

    const Result imported = run("import --json --choose clash=codex --prefer claude");
    EXPECT_EQ(imported.code, 0) << imported.errors.constData();
    EXPECT_EQ(imported.json()[u"skills"].toArray().size(), 2);
    EXPECT_EQ(bytesOf(path("home/.claude/skills/clash/SKILL.md")), "codex");
    EXPECT_EQ(run("compare clash").code, 0);

    const Result status = run("status");
    EXPECT_EQ(status.code, 0);
    EXPECT_TRUE(status.output.contains("Tout est à jour")) << status.output.constData();
    EXPECT_FALSE(status.output.contains('\x1b'));
    fs::remove_all(path("codex/left"));
    EXPECT_EQ(run("status").code, 1);
    EXPECT_EQ(run("sync --all --json").json().array().size(), 2);
    EXPECT_EQ(run("status").code, 0);
}

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
    for (const char *line : {"put demo x --file text", "rm demo --expect 6", "mv demo x --expect 6", "cat"})
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

TEST_F(Vornelctl, ReplacesFoldersOfOthersOnlyWhenTold)
{
    write("codex/demo/notes.txt", "theirs");
    const auto refuses = [this](const char *line) {
        const auto before = tree("");
        const Result refused = run(line);
        EXPECT_EQ(refused.code, 2) << line;
        EXPECT_EQ(refused.error()[u"error"], u"targetOccupied"_s) << refused.errors.constData();
        EXPECT_TRUE(refused.error()[u"message"].toString().contains(u"Codex  "_s + pathText(path("codex"))));
        EXPECT_EQ(tree(""), before) << line;
    };
    ASSERT_EQ(run("status").code, 0);
    refuses("create demo --name Démo --json");
    EXPECT_EQ(run({u"create"_s, u"demo"_s, u"--name"_s, u" "_s}).errors,
              QByteArray("Échec d’intégrité : Le nom du skill est vide.\n"));
    EXPECT_EQ(run("create demo --name Démo --category rien").errors,
              QByteArray("Échec d’intégrité : Catégorie introuvable.\n"));
    EXPECT_EQ(run("create demo --name Démo --replace").code, 0);
    EXPECT_EQ(run("create demo --name Démo --json").error()[u"error"], u"duplicateSlug"_s);
    EXPECT_EQ(run("trash demo").code, 0);
    write("codex/demo/notes.txt", "theirs again");
    refuses("restore demo --json");
    EXPECT_EQ(run("restore demo --replace").code, 0);

    write("home/.claude/skills/both/SKILL.md", "x");
    write("codex/both/notes.txt", "theirs, too");
    write("home/.claude/skills/aside/SKILL.md", "x");
    fs::create_symlink("/etc/passwd", path("codex/aside"));
    refuses("import --json");
    refuses("import --replace --json");
    for (const char *line : {"import --json", "import --replace --json"}) {
        const QJsonArray occupants = run(line).error()[u"occupants"].toArray();
        ASSERT_EQ(occupants.size(), 1) << "what can be replaced isn't among what can't: " << line;
        EXPECT_EQ(occupants[0][u"slug"], u"aside"_s);
        EXPECT_EQ(occupants[0][u"target"], u"codex"_s);
        EXPECT_EQ(occupants[0][u"refusal"], u"C’est un lien."_s);
    }
    EXPECT_EQ(run("import --except rien").code, 2);
    EXPECT_EQ(run("import --except aside --replace").code, 0);
    EXPECT_EQ(names("codex/both"), std::vector<std::string>{"SKILL.md"});
    EXPECT_FALSE(fs::exists(path("home/VORNEL/skills/aside")));
}

TEST_F(Vornelctl, NamesItsFailures)
{
    const Result unknown = run("show rien --json");
    EXPECT_EQ(unknown.code, 2);
    EXPECT_EQ(unknown.error()[u"error"], u"skillNotFound"_s);
    EXPECT_EQ(unknown.error()[u"message"], u"Skill introuvable : rien"_s);
    EXPECT_EQ(run("restore rien").errors, QByteArray("Skill introuvable : rien\n"));

    const Result blank = run({u"create"_s, u"x"_s, u"--name"_s, u"  "_s, u"--json"_s});
    EXPECT_EQ(blank.error()[u"message"], u"Échec d’intégrité : Le nom du skill est vide."_s);
    EXPECT_EQ(run({u"create"_s, u"--name"_s, u"x"_s, u"--json"_s, u"--"_s, u"--json"_s}).error()[u"error"],
              u"invalidPath"_s);
    EXPECT_EQ(run("create x --name x --file absent --json").error()[u"error"], u"fileSystem"_s);
    EXPECT_EQ(run("create x --name x --file - --json", "caf\xE9").error()[u"error"], u"fileSystem"_s);
    EXPECT_EQ(run("create x --name x --file - --json", QByteArray(26'214'401, 'x')).error()[u"error"],
              u"fileSystem"_s);
    EXPECT_TRUE(run("create x --name x --file .").errors.startsWith("C’est un dossier"));

    ASSERT_EQ(run("create a --name A").code, 0);
    ASSERT_EQ(run("create b --name B").code, 0);
    fs::remove_all(path("codex"));
    write("codex", "a file stands where the folder should");
    const Result partial = run("sync a b");
    EXPECT_EQ(partial.code, 2);
    EXPECT_EQ(partial.output, QByteArray());
    const auto said = [this](const char *slug) {
        return QByteArray(slug) + "\u00A0: Synchronisation incomplète : codex.\n  Codex\u00A0: " +
               "Ce n’est pas un dossier\u00A0: " + path("codex").c_str() + " (" + path("codex").c_str() +
               '/' + slug + ")\n";
    };
    EXPECT_EQ(partial.errors, said("a") + said("b"));
    const QJsonObject failed = run("sync b a --json").error();
    EXPECT_EQ(failed[u"error"], u"partialSync"_s);
    EXPECT_EQ(failed[u"failures"].toArray().size(), 2);
    EXPECT_EQ(failed[u"failures"][0][u"slug"], u"b"_s);
    EXPECT_EQ(failed[u"failures"][1][u"message"], failed[u"message"]);
    EXPECT_EQ(failed[u"failures"][1][u"copies"][0][u"target"], u"codex"_s);
    fs::remove(path("codex"));
    ASSERT_EQ(run({u"create"_s, u"c"_s, u"--name"_s, u"C"_s, u"--summary"_s, u"Audit: utile"_s}).code, 0);
    EXPECT_EQ(run("show c --json").json()[u"skillMD"],
              u"---\nname: c\ndescription: \"Audit: utile\"\n---\n\n# C\n\n"
              "Décrivez ici le fonctionnement de cette compétence."_s);
    const char *likeAnIdentifier = "create 0c9af7b6-0000-4000-8000-000000000000 --name x";
    EXPECT_EQ(run(likeAnIdentifier).code, 0);
    EXPECT_EQ(run("show 0c9af7b6-0000-4000-8000-000000000000").code, 0);

    write("ws/.vornel/workspace.json", "broken");
    EXPECT_EQ(run("--json status").error()[u"error"], u"integrityFailure"_s);
    EXPECT_TRUE(run("status").errors.endsWith(
        "\nFichier concerné\u00A0: " + path("ws/.vornel/workspace.json").string() + ".\n"));
}

TEST_F(Vornelctl, AnswersWrongUsageWithoutTouchingAnything)
{
    const QByteArray lines =
        "frobnicate;category;category rename;show;show a b;compare;diff;status extra;create x;save x --file "
        "f;save x "
        "--expect one --file f;list --maturity Draft;import --prefer both;import --choose a;set-aside a "
        "both;sync;sync --all x;status --verbose;status --all;list --search;--claude";
    for (const QByteArray &line : lines.split(';')) {
        SCOPED_TRACE(line.constData());
        const Result result = run(line);
        EXPECT_EQ(result.code, 64);
        EXPECT_TRUE(result.errors.contains("Usage : vornelctl"));
        EXPECT_TRUE(result.output.isEmpty());
        const Result asJson = run("--json " + line);
        EXPECT_EQ(asJson.code, 64);
        EXPECT_EQ(asJson.error()[u"error"], u"usage"_s);
    }
    EXPECT_FALSE(fs::exists(path("ws")));
    EXPECT_EQ(run("--help").code, 0);
    for (const char *line : {"import --help", "category -h"})
        EXPECT_TRUE(run(line).output.startsWith("Usage : vornelctl")) << line;
    for (const char *line : {"--version", "-v", "list -v"})
        EXPECT_TRUE(run(line).output.startsWith("vornelctl ")) << line;
    EXPECT_FALSE(fs::exists(path("ws")));
}

TEST_F(Vornelctl, SaysThatAStreamIsClosed)
{
    const Result mute = run("create x --name X", {}, STDOUT_FILENO);
    EXPECT_EQ(mute.code, 2);
    EXPECT_EQ(mute.errors, QByteArray("La sortie standard est fermée.\n"));
    EXPECT_FALSE(fs::exists(path("ws")));
    const Result deaf = run("create x --name X --file - --json", {}, STDIN_FILENO);
    EXPECT_EQ(deaf.code, 2);
    EXPECT_EQ(deaf.error()[u"message"], u"L’entrée standard est fermée."_s);
    EXPECT_EQ(run("create x --name X", {}, STDERR_FILENO).code, 0);
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
              (QStringList{u"choice"_s, u"digest"_s, u"kind"_s, u"revision"_s, u"slug"_s}));
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
    EXPECT_EQ(run("add - --prefer added --dry-run", archive).output,
              QByteArray("demo   révision 3\nother  déjà dans la bibliothèque, identique\n"));
    EXPECT_EQ(run("add - --choose demo=library --json", archive).json()[0][u"skillMD"], u"trois"_s);
    EXPECT_EQ(run("add - --choose demo=added --json", archive).json()[0][u"skillMD"], u"un"_s);

    EXPECT_EQ(run("add - --json", "no archive").error()[u"error"], u"integrityFailure"_s);
    EXPECT_EQ(run("add nowhere --json").error()[u"error"], u"fileSystem"_s);
    for (const char *line : {"add", "add given --choose demo=codex", "add given --prefer both"})
        EXPECT_EQ(run(line).code, 64) << line;
}

} // namespace
} // namespace vornel

#include "Vornelctl.h"

#include <VORNELCore/Records/SerializedForms.h>

#include <QJsonArray>

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

} // namespace
} // namespace vornel

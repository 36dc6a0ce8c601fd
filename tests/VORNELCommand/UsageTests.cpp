#include "Vornelctl.h"

#include <QJsonArray>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace vornel {
namespace {

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

} // namespace
} // namespace vornel

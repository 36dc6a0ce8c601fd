#include "FaultyFileSystem.h"
#include "Scratch.h"

#include <VORNELCore/Records/SerializedForms.h>
#include <VORNELInfrastructure/Exchange/Unpacking.h>

#include <archive.h>
#include <archive_entry.h>

#include <clocale>

using namespace Qt::StringLiterals;

namespace vornel {
namespace {

/// What a zip holds, as libarchive reads it: folders end in "/".
Tree zipTree(const fs::path &file)
{
    static const locale_t utf8 = ::newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
    const locale_t former = ::uselocale(utf8);
    archive *zip = ::archive_read_new();
    ::archive_read_support_format_zip(zip);
    EXPECT_EQ(::archive_read_open_filename(zip, file.c_str(), 10'240), ARCHIVE_OK);
    Tree tree;
    for (archive_entry *entry = nullptr; ::archive_read_next_header(zip, &entry) == ARCHIVE_OK;) {
        std::string bytes(static_cast<std::size_t>(::archive_entry_size(entry)), '\0');
        ::archive_read_data(zip, bytes.data(), bytes.size());
        tree[::archive_entry_pathname(entry)] = bytes;
        EXPECT_EQ(::archive_entry_perm(entry), ::archive_entry_filetype(entry) == AE_IFDIR ? 0755U : 0644U);
    }
    ::archive_read_free(zip);
    ::uselocale(former);
    return tree;
}

/// An entry of an archive that a test makes.
struct Made
{
    std::string name;
    std::string bytes = {};
    unsigned int type = AE_IFREG;
    std::string linkTo = {};
    bool isHardLink = false;
};

/// Makes an archive of the kind that its name tells.
void makeArchive(const fs::path &file, const std::vector<Made> &entries)
{
    archive *made = ::archive_write_new();
    if (file.extension() == ".zst") {
        ::archive_write_set_format_pax_restricted(made);
        ::archive_write_add_filter_zstd(made);
    } else {
        ::archive_write_set_format_filter_by_ext(made, file.c_str());
    }
    ASSERT_EQ(::archive_write_open_filename(made, file.c_str()), ARCHIVE_OK) << file;
    for (const Made &each : entries) {
        archive_entry *entry = ::archive_entry_new();
        ::archive_entry_set_pathname(entry, each.name.c_str());
        ::archive_entry_set_filetype(entry, each.type);
        ::archive_entry_set_perm(entry, 0644);
        ::archive_entry_set_size(entry, static_cast<la_int64_t>(each.bytes.size()));
        if (!each.linkTo.empty())
            (each.isHardLink ? ::archive_entry_set_hardlink
                             : ::archive_entry_set_symlink)(entry, each.linkTo.c_str());
        ASSERT_GE(::archive_write_header(made, entry), ARCHIVE_WARN) << ::archive_error_string(made);
        ::archive_write_data(made, each.bytes.data(), each.bytes.size());
        ::archive_entry_free(entry);
    }
    ASSERT_EQ(::archive_write_free(made), ARCHIVE_OK) << file;
}

class Exchange : public testing::Test, protected TestWorkspace
{
protected:
    Exchange() : TestWorkspace(std::make_shared<FaultyFileSystem>()) {}

    FaultyFileSystem &disk() const { return static_cast<FaultyFileSystem &>(*manager); }

    QList<SkillAddition> review(const std::string &source)
    {
        return service->reviewAddition({path(source)}).result();
    }

    std::optional<QByteArray> fileOffered(const SkillAddition &reviewed, const QString &file)
    {
        return service->readAddedFile({path("given/demo")}, reviewed, file).result();
    }

    /// Adds what is offered; where the contents differ, as chosen.
    QList<SkillDetail> add(const std::string &source, std::optional<AdditionChoice> choice = std::nullopt)
    {
        QList<SkillAddition> additions = review(source);
        for (SkillAddition &addition : additions) {
            if (addition.kind == AdditionKind::different)
                addition.choice = choice;
        }
        return service->addSkills({path(source)}, additions).result();
    }

    /// The slugs of what a source offers.
    std::vector<std::string> offered(const std::string &source)
    {
        std::vector<std::string> slugs;
        for (const SkillAddition &addition : review(source))
            slugs.push_back(addition.slug.toStdString());
        return slugs;
    }

    /// Expects that a source is refused with an error of this name, and that nothing has changed then.
    void expectRefusal(const std::string &source, const char *caseName, const char *message)
    {
        const Tree before = tree("");
        const auto error = errorOf([&] { review(source); });
        ASSERT_TRUE(error) << source;
        EXPECT_EQ(error->caseName(), QString::fromUtf8(caseName)) << source;
        EXPECT_TRUE(error->errorDescription().contains(QString::fromUtf8(message)))
            << source << ": " << error->what();
        EXPECT_EQ(tree(""), before) << source;
    }

    SkillExport exportTo(const std::string &file, const QList<QUuid> &ids)
    {
        return service->exportSkills(ids, path(file)).result();
    }
};

TEST_F(Exchange, ExportsWhatACopyHolds)
{
    const QUuid demo = create(u"demo"_s).manifest.id;
    const QUuid other = create(u"autre"_s).manifest.id;
    write("workspace/skills/demo/notes/vornel.json", "{}");
    write("workspace/skills/demo/.git/config", "hidden");
    write("workspace/skills/demo/r\xC3\xA9sum\xC3\xA9.md", "é");
    fs::create_directories(path("workspace/skills/demo/empty"));

    const SkillExport written = exportTo("both.zip", {demo, other, demo});
    EXPECT_EQ(written.slugs, (QStringList{u"autre"_s, u"demo"_s}));
    EXPECT_EQ(written.file, pathText(path("both.zip")));
    EXPECT_EQ(static_cast<std::uintmax_t>(written.size), fs::file_size(path("both.zip")));
    EXPECT_EQ(zipTree(path("both.zip")), (Tree{{"autre/", ""},
                                               {"autre/SKILL.md", "texte"},
                                               {"demo/", ""},
                                               {"demo/SKILL.md", "texte"},
                                               {"demo/empty/", ""},
                                               {"demo/notes/", ""},
                                               {"demo/r\xC3\xA9sum\xC3\xA9.md", "é"}}));
    fs::last_write_time(path("workspace/skills/demo/SKILL.md"), fs::file_time_type::clock::now());
    exportTo("again.zip", {other, demo});
    EXPECT_EQ(bytesOf(path("again.zip")), bytesOf(path("both.zip")));
}

TEST_F(Exchange, ExportsNothingThatIsUnsafeOrInTheWay)
{
    const QUuid demo = create(u"demo"_s).manifest.id;
    write("there.zip", "mine");
    EXPECT_THROW(exportTo("there.zip", {demo}), fs::filesystem_error);
    EXPECT_THROW(exportTo("nowhere/a.zip", {demo}), fs::filesystem_error);
    EXPECT_EQ(errorOf([&] { exportTo("a.zip", {demo, QUuid()}); }), Error::skillNotFound({}));
    fs::create_symlink("/etc/passwd", path("workspace/skills/demo/link"));
    EXPECT_EQ(errorOf([&] { exportTo("a.zip", {demo}); }), Error::symlinkUnsupported(u"link"_s));
    EXPECT_EQ(bytesOf(path("there.zip")), "mine");
    EXPECT_EQ(names(""), (std::vector<std::string>{"claude", "codex", "there.zip", "workspace"}));
}

TEST_F(Exchange, LeavesAWholeArchiveOrNoneWhateverFails)
{
    const QUuid demo = create(u"demo"_s).manifest.id;
    int calls = 0;
    for (int number = 0; number <= calls; ++number) {
        disk().failAt(number, FaultyFileSystem::Call::Change);
        bool isWritten = true;
        try {
            exportTo("a.zip", {demo});
        } catch (const fs::filesystem_error &) {
            isWritten = false;
        }
        calls = std::max(calls, disk().calls());
        disk().failAt(0, FaultyFileSystem::Call::Change);
        EXPECT_EQ(names("").size(), isWritten ? 4U : 3U) << "after fault " << number;
        EXPECT_EQ(isWritten ? zipTree(path("a.zip")).size() : 2U, 2U);
        fs::remove(path("a.zip"));
    }
    EXPECT_GT(calls, 3);
}

TEST_F(Exchange, BringsBackWhatWasExported)
{
    const QUuid hard = create(u"hard"_s).manifest.id;
    const std::string folder = "workspace/skills/hard/";
    std::string deep = "deep";
    for (int level = 0; level < 60; ++level)
        deep += "/deep";
    const std::string large(20'000'000, 'x');
    for (const std::string &name :
         {std::string("re\u0301vue.md"), std::string("r\u00E9vue.md"), std::string("\u212B"),
          std::string("\u1100\u1161"), std::string("a\\b"), std::string("two\nlines"), std::string("-rf"),
          std::string("a:b"), std::string("x. "), std::string("A"), std::string("a"), std::string("%2e%2e"),
          std::string(255, 'n'), deep + "/leaf", std::string("empty file"), std::string("Vornel.json")})
        write(folder + name, name == "empty file" ? "" : name + "\r\n");
    write(folder + "large", large);
    fs::create_directories(path(folder + "empty/\u3042/folders"));
    service->synchronize(hard).result();
    const Tree before = tree("claude/hard");
    ASSERT_GT(before.size(), 80U);

    exportTo("hard.zip", {hard});
    service->moveToTrash(hard).result();
    service->deletePermanently(hard).result();
    const QList<SkillDetail> added = add("hard.zip");
    ASSERT_EQ(added.size(), 1);
    EXPECT_EQ(added.first().syncState, SyncState::inSync);
    EXPECT_EQ(tree("claude/hard"), before);
    exportTo("again.zip", {added.first().manifest.id});
    EXPECT_TRUE(bytesOf(path("again.zip")) == bytesOf(path("hard.zip")));
}

TEST_F(Exchange, AddsASkillAsAnImportDoes)
{
    write("given/demo/SKILL.md", "name: Démo\ndescription: Résumé");
    write("given/demo/sub/notes.md", "notes");
    write("given/demo/vornel.json", "theirs");
    write("given/demo/.hidden", "theirs");
    write("given/README.md", "passed over");
    write("codex/demo/SKILL.md", "a stranger's");
    fs::create_symlink(path("given"), path("link"));

    const QList<SkillAddition> additions = review("link/demo");
    ASSERT_EQ(additions.size(), 1);
    EXPECT_EQ(additions.first().kind, AdditionKind::added);
    EXPECT_EQ(names("workspace/skills"), std::vector<std::string>());
    const SkillManifest manifest = add("link/demo").first().manifest;
    EXPECT_EQ(manifest.displayName, u"Démo"_s);
    EXPECT_EQ(manifest.summary, u"Résumé"_s);
    EXPECT_EQ(manifest.category, SkillCategory::otherID);
    EXPECT_EQ(manifest.maturity, Maturity::active);
    const Tree expected{
        {"SKILL.md", "name: Démo\ndescription: Résumé"}, {"sub/", ""}, {"sub/notes.md", "notes"}};
    EXPECT_EQ(tree("claude/demo"), expected);
    EXPECT_EQ(tree("codex/demo"), expected);
    const std::string history = "workspace/.vornel/history/" + uuidText(manifest.id).toStdString();
    EXPECT_EQ(trees(history, "1-").size(), 1U);
    EXPECT_EQ(trees(history, "replaced-codex-"), std::vector{(Tree{{"SKILL.md", "a stranger's"}})});

    EXPECT_EQ(review("given").first().kind, AdditionKind::identical);
    EXPECT_EQ(add("given").first().manifest.revision, 1);
    EXPECT_TRUE(names("workspace/.vornel/staging").empty());
}

TEST_F(Exchange, MakesARevisionOfOtherContentWhenTold)
{
    const QUuid demo = create(u"demo"_s, u"le mien"_s).manifest.id;
    write("given/demo/SKILL.md", "le sien");
    write("given/demo/notes.md", "notes");
    write("given/other/SKILL.md", "texte");
    const Tree before = tree("workspace");
    EXPECT_EQ(errorOf([&] { add("given"); }), Error::unresolvedCollisions({demo}));
    EXPECT_EQ(tree("workspace"), before);

    EXPECT_EQ(add("given/demo", AdditionChoice::library).first().skillMD, u"le mien"_s);
    EXPECT_EQ(tree("workspace"), before);
    const QList<SkillAddition> stale = review("given/demo");
    EXPECT_EQ(stale.first().differences, (QList<FileDifference>{{u"SKILL.md"_s, FileChange::changed},
                                                                {u"notes.md"_s, FileChange::added}}));
    EXPECT_EQ(fileOffered(stale.first(), u"SKILL.md"_s), "le sien");
    EXPECT_EQ(fileOffered(stale.first(), u"absent.md"_s), std::nullopt);
    EXPECT_EQ(errorOf([&] { fileOffered(stale.first(), u"../other/SKILL.md"_s); })->caseName(),
              u"invalidPath"_s);
    const SkillDetail revised = add("given/demo", AdditionChoice::added).first();
    EXPECT_EQ(revised.manifest.revision, 2);
    EXPECT_EQ(revised.skillMD, u"le sien"_s);
    EXPECT_EQ(tree("codex/demo"), (Tree{{"SKILL.md", "le sien"}, {"notes.md", "notes"}}));
    const std::string history = "workspace/.vornel/history/" + uuidText(demo).toStdString();
    ASSERT_EQ(trees(history, "1-").size(), 1U);
    EXPECT_EQ(trees(history, "1-").front().at("SKILL.md"), "le mien");
    EXPECT_EQ(errorOf([&] { service->addSkills({path("given/demo")}, stale).result(); }),
              integrity(u"Ce qui est à ajouter a changé depuis l’examen."_s));

    write("given/demo/SKILL.md", " \n");
    EXPECT_EQ(errorOf([&] { fileOffered(stale.first(), u"SKILL.md"_s); }),
              integrity(u"Ce qui est à ajouter a changé depuis l’examen."_s));
    EXPECT_EQ(errorOf([&] { review("given"); }), Error::missingSkillFile(u"demo"_s));
    service->moveToTrash(demo).result();
    EXPECT_EQ(errorOf([&] { review("given"); }), Error::duplicateSlug(u"demo"_s));
}

TEST_F(Exchange, FindsTheSkillsOfAnArchive)
{
    for (const char *file :
         {"demo.zip", "demo.tar", "demo.tar.gz", "demo.tar.bz2", "demo.tar.xz", "demo.tar.zst"}) {
        makeArchive(path(file),
                    {{"./", "", AE_IFDIR}, {"./SKILL.md", "texte"}, {"./sub//notes.md", "notes"}});
        EXPECT_EQ(offered(file), std::vector<std::string>{"demo"}) << file;
    }
    makeArchive(path("demo (1).zip"), {{"SKILL.md", "---\nname: 'named'\n---\nname: sample\n"}});
    EXPECT_EQ(offered("demo (1).zip"), std::vector<std::string>{"named"});
    makeArchive(path("several.tgz"), {{"repository-main/README.md", "x"},
                                      {"repository-main/b/SKILL.md", "name: other\n"},
                                      {"repository-main/a/SKILL.md", "x"},
                                      {"repository-main/.github/notes.md", "x"},
                                      {"__MACOSX/._a", "x"}});
    EXPECT_EQ(offered("several.tgz"), (std::vector<std::string>{"a", "b"}));

    add("demo.tar.xz");
    EXPECT_EQ(tree("claude/demo"), (Tree{{"SKILL.md", "texte"}, {"sub/", ""}, {"sub/notes.md", "notes"}}));
    EXPECT_EQ(review("demo.zip").first().kind, AdditionKind::identical);
}

TEST_F(Exchange, RefusesWhatIsNoSkill)
{
    write("Bad_Name/SKILL.md", "x");
    expectRefusal("Bad_Name", "invalidPath", "invalidSlug");
    write("both/good/SKILL.md", "x");
    write("both/docs/notes.md", "x");
    expectRefusal("both", "missingSkillFile", "docs");
    write("latin/SKILL.md", "caf\xE9");
    expectRefusal("latin", "integrityFailure", "UTF-8");
    write("linked/SKILL.md", "x");
    fs::create_symlink("/etc/passwd", path("linked/link"));
    expectRefusal("linked", "symlinkUnsupported", "link");
    write("text.zip", "no archive");
    expectRefusal("text.zip", "integrityFailure", "L’archive ne peut pas être lue");
    makeArchive(path("a b.zip"), {{"SKILL.md", "x"}});
    expectRefusal("a b.zip", "invalidPath", "invalidSlug");
    makeArchive(path("whole.zip"), {{"demo/SKILL.md", std::string(5000, 'x')}});
    fs::resize_file(path("whole.zip"), fs::file_size(path("whole.zip")) / 3);
    expectRefusal("whole.zip", "integrityFailure", "L’archive ne peut pas être lue");
    EXPECT_THROW(review("nowhere"), fs::filesystem_error);
}

TEST_F(Exchange, LetsNothingOutOfAnArchive)
{
    const Made skill{"demo/SKILL.md", "x"};
    const auto refuses = [&](const char *file, const Made &entry, const char *caseName, const char *message) {
        SCOPED_TRACE(entry.name);
        makeArchive(path(file), {skill, entry});
        expectRefusal(file, caseName, message);
    };
    for (const char *file : {"a.zip", "a.tar"}) {
        for (const char *name : {"../out", "demo/../../out", "/out", "C:/out", "..\\out", "demo/..\\..\\out",
                                 "\\out", "demo/.."})
            refuses(file, {name, "x"}, "integrityFailure", "qui mène hors de son dossier");
        refuses(file, skill, "integrityFailure", "deux fois");
        refuses(file, {"demo/SKILL.md/below", "x"}, "integrityFailure", "deux fois");
        refuses(file, {"demo/link", "", AE_IFLNK, "/etc/passwd"}, "symlinkUnsupported", "demo/link");
        refuses(file, {"demo/.vornel/x", "x"}, "invalidPath", "reserved");
        std::string deep = "demo";
        for (int level = 0; level < 100; ++level)
            deep += "/d";
        refuses(file, {deep, "x"}, "integrityFailure", "trop imbriqués");
    }
    refuses("a.zip", {"demo/\xFF\xFE", "x"}, "integrityFailure", "UTF-8");
    refuses("a.tar", {"demo/hard", "", AE_IFREG, "demo/SKILL.md", true}, "symlinkUnsupported", "demo/hard");
    for (const unsigned int type : {AE_IFCHR, AE_IFBLK, AE_IFIFO})
        refuses("a.tar", {"demo/device", "", type}, "integrityFailure", "ni un fichier ni un dossier");
}

TEST_F(Exchange, IsNotFilledByABomb)
{
    const std::string zeros(26'214'401, '\0');
    makeArchive(path("large.zip"), {{"demo/SKILL.md", "x"}, {"demo/.zeros", zeros}});
    ASSERT_LT(fs::file_size(path("large.zip")), 100'000U);
    expectRefusal("large.zip", "integrityFailure", "25\u00A0Mio");

    makeArchive(path("many.tar.gz"), {{"a", "12"}, {"b", "34"}, {"c/", "", AE_IFDIR}});
    const auto unpackWithin = [this](const char *place, const ArchiveLimits &limits) {
        const Folder folder = manager->openAbove(path());
        unpack(*manager, manager->openFile(folder, "many.tar.gz"), path(place), limits);
    };
    unpackWithin("workspace/fits", {.entries = 3, .bytes = 4});
    EXPECT_EQ(tree("workspace/fits"), (Tree{{"a", "12"}, {"b", "34"}, {"c/", ""}}));
    EXPECT_EQ(errorOf([&] { unpackWithin("workspace/count", {.entries = 2, .bytes = 4}); }),
              integrity(u"L’archive contient plus de 2 éléments."_s));
    EXPECT_EQ(errorOf([&] { unpackWithin("workspace/bytes", {.entries = 3, .bytes = 3}); }),
              integrity(u"Le contenu de l’archive dépasse 3\u00A0octets."_s));

    makeArchive(path("many.tar.gz"), {{"a/b/c/d", ""}});
    unpackWithin("workspace/deep", {.entries = 4, .bytes = 0});
    EXPECT_EQ(errorOf([&] { unpackWithin("workspace/deeper", {.entries = 3, .bytes = 0}); }),
              integrity(u"L’archive contient plus de 3 éléments."_s))
        << "folders that are only named by what is in them";
}

} // namespace
} // namespace vornel

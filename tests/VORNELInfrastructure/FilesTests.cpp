#include "FaultyFileSystem.h"
#include "Scratch.h"

#include <VORNELCore/Records/SkillFiles.h>

#include <unistd.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vornel {
namespace {

class Files : public testing::Test, protected TestWorkspace
{
protected:
    Files() : TestWorkspace(std::make_shared<FaultyFileSystem>()), demo(create(u"demo"_s).manifest.id)
    {
        change({WrittenFile{u"reference/deep/page.md"_s, "page"}, WrittenFile{u"data.bin"_s, bytes}}, 1);
    }

    SkillDetail change(const QList<PathChange> &changes, qint64 expected) const
    {
        return service->changeFiles(demo, changes, expected).result();
    }

    std::optional<Error> refusal(const QList<PathChange> &changes, qint64 expected = 2) const
    {
        return errorOf([&] { change(changes, expected); });
    }

    /// What the skill's folder and both copies hold, which is the same.
    Tree content() const
    {
        Tree library = tree("workspace/skills/demo");
        library.erase("vornel.json");
        EXPECT_EQ(tree("claude/demo"), library);
        EXPECT_EQ(tree("codex/demo"), library);
        return library;
    }

    /// All three roots.
    std::array<Tree, 3> everything() const { return {tree("workspace"), tree("claude"), tree("codex")}; }

    const QByteArray bytes{"\x00\xFF\r\n", 4};
    const QUuid demo;
};

TEST_F(Files, ChangeTogetherInOneRevision)
{
    const Tree before = content();
    ASSERT_EQ(before.at("data.bin"), bytes.toStdString());
    fs::permissions(path("workspace/skills/demo/reference/deep/page.md"), fs::perms::owner_all);
    const SkillDetail changed =
        change({MovedPath{u"reference/"_s, u"docs/reference"_s},
                WrittenFile{u"docs/reference/deep/next.md"_s, "next"}, RemovedPath{u"data.bin"_s},
                NewFolder{u"data.bin/empty"_s}, WrittenFile{u"SKILL.md"_s, "neuf"}},
               2);
    EXPECT_EQ(changed.manifest.revision, 3);
    EXPECT_EQ(changed.skillMD, u"neuf"_s);
    EXPECT_EQ(changed.syncState, SyncState::inSync);
    EXPECT_EQ(content(), (Tree{{"SKILL.md", "neuf"},
                               {"data.bin/", ""},
                               {"data.bin/empty/", ""},
                               {"docs/", ""},
                               {"docs/reference/", ""},
                               {"docs/reference/deep/", ""},
                               {"docs/reference/deep/next.md", "next"},
                               {"docs/reference/deep/page.md", "page"}}));
    EXPECT_EQ(service->emptyFolders(demo).result(), (QStringList{u"data.bin"_s, u"data.bin/empty"_s}));
    EXPECT_EQ(permissionsOf(path("workspace/skills/demo/docs/reference/deep/page.md")), 0700)
        << "a file that moves isn't written anew";

    const QList<HistoryEntry> history = service->history(demo).result();
    ASSERT_EQ(history.size(), 3);
    EXPECT_EQ(service->readVersionFile(demo, history.at(1).entry, u"data.bin"_s).result(), bytes);

    service->undo(service->undoableStep().value().id).waitForFinished();
    EXPECT_EQ(content(), before);
    EXPECT_EQ(service->undoableStep().value().action, UndoableAction::files);
}

TEST_F(Files, ChangeNothingUnlessAllChangesCanBeMade)
{
    const auto before = everything();
    const WrittenFile good{u"good.md"_s, "good"};
    const auto refuses = [&](const PathChange &change) { return refusal({good, change}); };

    EXPECT_EQ(refusal({good}, 1), Error::revisionConflict(1, 2));
    for (const auto &[path, violation] : std::initializer_list<std::pair<const char *, PathViolation>>{
             {"", PathViolation::empty},
             {"/etc/passwd", PathViolation::absolute},
             {"a/../../b", PathViolation::parentTraversal},
             {"a/.vornel/b", PathViolation::reserved}}) {
        const QString typed = QString::fromUtf8(path);
        for (const PathChange &each : std::initializer_list<PathChange>{
                 WrittenFile{typed, "x"}, NewFolder{typed}, MovedPath{typed, u"x"_s},
                 MovedPath{u"data.bin"_s, typed}, RemovedPath{typed}})
            EXPECT_EQ(refuses(each), Error::invalidPath(violation)) << path;
    }
    const auto refusesPath = [&](const QString &path, const QString &reason) {
        EXPECT_EQ(refuses(WrittenFile{path, "x"}), integrity(reason.arg(path))) << path.toStdString();
        EXPECT_EQ(refuses(MovedPath{u"data.bin"_s, path}), integrity(reason.arg(path))) << path.toStdString();
    };
    const QString hidden = u"«\u00A0%1\u00A0» est caché\u00A0: une compétence ne garde rien de caché."_s;
    for (const QString &path : {u".env"_s, u"a/.git/b"_s, u"./a"_s})
        refusesPath(path, hidden);
    for (const QString &path : {u"vornel.json"_s, u"a/vornel.json"_s})
        refusesPath(path, u"«\u00A0%1\u00A0» porte le nom d’un fichier réservé à VORNEL."_s);
    refusesPath(u"a//b"_s, u"«\u00A0%1\u00A0» contient un nom vide."_s);
    refusesPath(u"é"_s.repeated(128), u"«\u00A0%1\u00A0» contient un nom de plus de 255\u00A0octets."_s);
    refusesPath(u"SKILL.md/a"_s, u"Un fichier est sur le chemin de «\u00A0%1\u00A0»."_s);
    const QString deep = u"a/"_s.repeated(SkillFiles::deepestLevel);
    EXPECT_EQ(refuses(WrittenFile{deep + u'b', "x"}), refuses(NewFolder{deep}));
    EXPECT_EQ(refuses(NewFolder{deep}),
              integrity(u"Les dossiers de «\u00A0%1\u00A0» sont trop imbriqués."_s.arg(deep.chopped(1))));
    const QByteArray large(SkillFiles::sizeLimit + 1, 'x');
    EXPECT_EQ(refuses(WrittenFile{u"large"_s, large}),
              integrity(u"«\u00A0large\u00A0» dépasse 25\u00A0Mio."_s));
    EXPECT_EQ(refuses(WrittenFile{u"reference"_s, "x"}),
              integrity(u"«\u00A0reference\u00A0» est un dossier."_s));
    EXPECT_EQ(refuses(NewFolder{u"data.bin"_s}), integrity(u"«\u00A0data.bin\u00A0» existe déjà."_s));
    const Error missing = integrity(u"La compétence ne contient pas «\u00A0rien\u00A0»."_s);
    EXPECT_EQ(refuses(RemovedPath{u"rien"_s}), missing);
    EXPECT_EQ(refuses(MovedPath{u"rien"_s, u"x"_s}), missing);
    EXPECT_EQ(refuses(MovedPath{u"data.bin"_s, u"reference"_s}),
              integrity(u"«\u00A0reference\u00A0» existe déjà."_s));
    EXPECT_EQ(refuses(MovedPath{u"reference"_s, u"reference/deep/below"_s}),
              integrity(u"«\u00A0reference\u00A0» ne peut pas être déplacé dans lui-même."_s));

    const Error kept = integrity(u"«\u00A0SKILL.md\u00A0» ne peut être ni supprimé ni déplacé."_s);
    EXPECT_EQ(refuses(RemovedPath{u"SKILL.md"_s}), kept);
    EXPECT_EQ(refuses(MovedPath{u"SKILL.md"_s, u"x"_s}), kept);
    EXPECT_EQ(refuses(WrittenFile{u"SKILL.md"_s, " \n"}), Error::missingSkillFile(u"demo"_s));
    EXPECT_THROW(change({good, WrittenFile{u"SKILL.md"_s, "\xFF"}}, 2), fs::filesystem_error);
    EXPECT_EQ(change({WrittenFile{u"data.bin"_s, bytes}, MovedPath{u"reference"_s, u"x"_s},
                      MovedPath{u"x"_s, u"reference"_s}},
                     2)
                  .manifest.revision,
              2);
    EXPECT_FALSE(service->undoableStep()) << "nothing was changed";
    EXPECT_EQ(everything(), before);
}

/// What the tree can hold at most is taken.
TEST_F(Files, MayBeAsLargeAndAsDeepAsTheTreeAllows)
{
    const QString deep = u"a/"_s.repeated(SkillFiles::deepestLevel - 1);
    change({WrittenFile{deep + u"b"_s, "deep"}, WrittenFile{u"é"_s.repeated(127), "long"},
            WrittenFile{u"large"_s, QByteArray(SkillFiles::sizeLimit, 'x')}},
           2);
    EXPECT_EQ(content().at(deep.toStdString() + "b"), "deep");
}

TEST_F(Files, AreNotChangedThroughLinks)
{
    write("outside/file", "outside");
    fs::create_directory_symlink(path("outside"), path("workspace/skills/demo/link"));
    const auto before = everything();
    const Error link = Error::symlinkUnsupported(u"link"_s);
    for (const PathChange &each :
         std::initializer_list<PathChange>{WrittenFile{u"link/file"_s, "x"}, WrittenFile{u"elsewhere"_s, "x"},
                                           MovedPath{u"link/file"_s, u"x"_s}, RemovedPath{u"link"_s}})
        EXPECT_EQ(refusal({each}), link);
    EXPECT_EQ(errorOf([&] { service->duplicateSkill(demo, u"other"_s, {}).result(); }), link);
    EXPECT_TRUE(errorOf([&] { service->openFile(demo, u"link/file"_s).result(); }));
    fs::create_symlink(path("outside/file"), path("workspace/skills/demo/reference/link"));
    EXPECT_TRUE(errorOf([&] { service->openFile(demo, u"reference/link"_s).result(); }));
    fs::remove(path("workspace/skills/demo/reference/link"));
    EXPECT_EQ(everything(), before);
    EXPECT_EQ(bytesOf(path("outside/file")), "outside");
}

TEST_F(Files, AreOpenedForOtherPrograms)
{
    const auto page = path("workspace/skills/demo/reference/deep/page.md");
    const auto open = [this] { return service->openFile(demo, u"reference/deep/page.md"_s).result(); };
    EXPECT_TRUE(open()->isWritable());
    EXPECT_EQ(open()->readAll(), "page");
    fs::permissions(page, fs::perms::owner_read);
    EXPECT_EQ(open()->readAll(), "page");
    EXPECT_EQ(open()->isWritable(), ::access(page.c_str(), W_OK) == 0);
    EXPECT_EQ(errorOf([&] { service->openFile(demo, u"../notes/SKILL.md"_s).result(); }),
              Error::invalidPath(PathViolation::parentTraversal));
    EXPECT_THROW(service->openFile(demo, u"reference"_s).result(), fs::filesystem_error);
}

/// What was edited by hand and the hidden files of the former folder are kept.
TEST_F(Files, KeepWhatWasEditedByHand)
{
    write("workspace/skills/demo/by-hand", "by hand");
    write("workspace/skills/demo/.hidden", "hidden");
    write("codex/demo/data.bin", "of an assistant");
    change({RemovedPath{u"by-hand"_s}, RemovedPath{u"reference"_s}}, 2);
    EXPECT_EQ(content().size(), 2U);
    const auto inHistory = [this](const std::string &name, const std::string &text) {
        const Tree all = tree("workspace/.vornel/history");
        return std::ranges::any_of(
            all, [&](const auto &file) { return file.first.ends_with(name) && file.second == text; });
    };
    EXPECT_TRUE(inHistory("/by-hand", "by hand"));
    EXPECT_TRUE(inHistory("/.hidden", "hidden"));
    EXPECT_TRUE(inHistory("/data.bin", "of an assistant"));
}

TEST_F(Files, OfASkillAreDuplicatedWithItsProperties)
{
    service
        ->setProperties({demo}, {.summary = u"Pour voir"_s, .category = u"design"_s, .addedTags = {u"a"_s}},
                        {})
        .result();
    write("workspace/skills/demo/.hidden", "hidden");
    const SkillDetail copy = service->duplicateSkill(demo, u"other"_s, {}).result();
    SkillProperties expected = SkillProperties::of(service->loadSkill(demo).result().manifest);
    expected.slug = u"other"_s;
    expected.displayName = u"demo (copie)"_s;
    EXPECT_EQ(SkillProperties::of(copy.manifest), expected);
    EXPECT_EQ(copy.manifest.revision, 1);
    EXPECT_EQ(copy.syncState, SyncState::inSync);
    EXPECT_EQ(tree("codex/other"), tree("codex/demo"));

    EXPECT_EQ(service->duplicateSkill(demo, u"third"_s, u"Trois"_s).result().manifest.displayName,
              u"Trois"_s);
    const auto refuses = [this](const QString &slug) {
        return errorOf([&] { service->duplicateSkill(demo, slug, {}).result(); });
    };
    EXPECT_EQ(refuses(u"other"_s), Error::duplicateSlug(u"other"_s));
    EXPECT_EQ(refuses(u"Bad"_s), Error::invalidPath(PathViolation::invalidSlug));
    service->moveToTrash(copy.manifest.id).waitForFinished();
    EXPECT_EQ(refuses(u"other"_s), Error::duplicateSlug(u"other"_s));
}

} // namespace
} // namespace vornel

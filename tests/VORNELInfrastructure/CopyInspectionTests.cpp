#include "FaultyFileSystem.h"
#include "Scratch.h"
#include "StartingState.h"

#include <VORNELCore/Errors/ErrorMessage.h>
#include <VORNELCore/Records/SerializedForms.h>

#include <sys/stat.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vornel {

void PrintTo(const FileDifference &difference, std::ostream *stream)
{
    *stream << rawValue(difference.change).toStdString() << ' ' << difference.relativePath.toStdString();
}

namespace {

using enum FileChange;

class Inspection : public testing::Test, protected TestWorkspace
{
protected:
    Inspection() : demo(create(u"demo"_s, u"canonical"_s).manifest.id)
    {
        write("workspace/skills/demo/scripts/run", "run");
        fs::create_directory(path("workspace/skills/demo/empty"));
        service->synchronize(demo).waitForFinished();
    }

    CopyInspection inspect(TargetKind target)
    {
        const QList<CopyInspection> all = service->inspectCopies(demo).result();
        EXPECT_EQ(all.size(), 2);
        EXPECT_EQ(all.at(static_cast<int>(target)).target, target);
        return all.at(static_cast<int>(target));
    }

    std::optional<QByteArray> read(std::optional<TargetKind> copy, const QString &file)
    {
        return service->readFile(demo, copy, file).result();
    }

    /// The inspection of a copy in this state, without differences or reason.
    CopyInspection copy(TargetKind target, SyncState state) const
    {
        return {.target = target, .state = state, .path = path(rawValue(target).toStdString() + "/demo")};
    }

    QUuid demo;
};

TEST_F(Inspection, ListsWhatDiffersInACopy)
{
    struct Case
    {
        const char *name;
        std::function<void()> edit;
        QList<FileDifference> differences;
    };
    const fs::path folder = path("codex/demo");
    const std::vector<Case> cases{
        {"nothing", [] {}, {}},
        {"same size", [&] { write("codex/demo/SKILL.md", "CANONICAL"); }, {{u"SKILL.md"_s, changed}}},
        {"added", [&] { write("codex/demo/é.txt", "x"); }, {{u"é.txt"_s, added}}},
        {"removed", [&] { fs::remove(folder / "SKILL.md"); }, {{u"SKILL.md"_s, removed}}},
        {"nested", [&] { write("codex/demo/scripts/run", ""); }, {{u"scripts/run"_s, changed}}},
        {"folder with a file", [&] { write("codex/demo/a/b/c", "x"); }, {{u"a/b/c"_s, added}}},
        {"folder of what does not count", [&] { write("codex/demo/a/.x", "x"); }, {{u"a/"_s, added}}},
        {"emptied folder", [&] { fs::remove(folder / "scripts/run"); }, {{u"scripts/run"_s, removed}}},
        {"empty folder", [&] { fs::remove(folder / "empty"); }, {{u"empty/"_s, removed}}},
        {"file for a folder",
         [&] {
             fs::remove(folder / "empty");
             write("codex/demo/empty", "x");
         },
         {{u"empty"_s, added}, {u"empty/"_s, removed}}},
        {"folder for a file",
         [&] {
             fs::remove(folder / "SKILL.md");
             write("codex/demo/SKILL.md/text", "x");
         },
         {{u"SKILL.md"_s, removed}, {u"SKILL.md/text"_s, added}}},
        {"what does not count",
         [&] {
             write("codex/demo/vornel.json", "x");
             write("codex/demo/scripts/vornel.json", "x");
             write("codex/demo/.hidden/file", "x");
         },
         {}},
    };
    for (const Case &next : cases) {
        next.edit();
        const CopyInspection codex = inspect(TargetKind::codex);
        EXPECT_EQ(codex.differences, next.differences) << next.name;
        EXPECT_EQ(codex.state, next.differences.isEmpty() ? SyncState::inSync : SyncState::drifted)
            << next.name;
        EXPECT_EQ(codex.state, stateOf(u"demo"_s)) << next.name;
        EXPECT_EQ(inspect(TargetKind::claude), copy(TargetKind::claude, SyncState::inSync)) << next.name;
        fs::remove_all(folder);
        service->synchronize(demo).waitForFinished();
    }
}

TEST_F(Inspection, TellsEveryCopyApart)
{
    const CopyInspection missing = copy(TargetKind::codex, SyncState::missing);
    fs::remove_all(path("codex/demo"));
    EXPECT_EQ(inspect(TargetKind::codex), missing);
    fs::remove_all(path("codex"));
    EXPECT_EQ(inspect(TargetKind::codex), missing);
    fs::create_directory_symlink(path("claude"), path("codex"));
    EXPECT_EQ(inspect(TargetKind::codex).state, SyncState::failed);
    EXPECT_EQ(inspect(TargetKind::claude), copy(TargetKind::claude, SyncState::inSync));
}

TEST_F(Inspection, RemembersAFailedSynchronisation)
{
    fs::create_symlink("/etc/passwd", path("codex/demo/link"));
    EXPECT_EQ(errorOf([&] { service->synchronize(demo).waitForFinished(); }),
              Error::partialSync({TargetKind::codex}));
    fs::remove(path("codex/demo/link"));
    write("codex/demo/SKILL.md", "edited");
    const CopyInspection failed = inspect(TargetKind::codex);
    EXPECT_EQ(failed.state, SyncState::failed);
    EXPECT_EQ(failed.reason, Error::symlinkUnsupported(u"link"_s).errorDescription());
    EXPECT_EQ(failed.differences, (QList<FileDifference>{{u"SKILL.md"_s, changed}}));
    EXPECT_EQ(inspect(TargetKind::claude), copy(TargetKind::claude, SyncState::inSync));
}

TEST_F(Inspection, ReadsTheFilesOfTheSkillAndOfItsCopies)
{
    write("codex/demo/scripts/run", std::string("a\0\xFF", 3));
    EXPECT_EQ(read(std::nullopt, u"scripts/run"_s), "run");
    EXPECT_EQ(read(TargetKind::claude, u"scripts/run"_s), "run");
    EXPECT_EQ(read(TargetKind::codex, u"scripts/run"_s), QByteArray("a\0\xFF", 3));
    for (const char *absent : {"nothing", "no/folder", "SKILL.md/below", "SKILL.md/", "empty", "empty/", "."})
        EXPECT_EQ(read(TargetKind::codex, QString::fromUtf8(absent)), std::nullopt) << absent;
}

TEST_F(Inspection, ReadsNothingOutOfTheSkill)
{
    EXPECT_EQ(errorOf([&] { read(TargetKind::codex, u"../demo/SKILL.md"_s); }),
              Error::invalidPath(PathViolation::parentTraversal));
    fs::create_symlink(path("codex/demo/SKILL.md"), path("codex/demo/link"));
    fs::create_directory_symlink(path("codex/demo/scripts"), path("codex/demo/folder"));
    for (const char *file : {"link", "folder/run"}) {
        const auto error = errorOf([&] { read(TargetKind::codex, QString::fromUtf8(file)); });
        ASSERT_TRUE(error) << file;
        EXPECT_NE(error->as<WorkspaceErrorCase::SymlinkUnsupported>(), nullptr) << file;
    }
}

TEST_F(Inspection, TellsWhoseFoldersStandInTheWay)
{
    const QList<TargetPlace> places =
        placesOf({u"demo"_s, u"other"_s, u"file"_s, u"link"_s, u".."_s, u"../codex"_s, u"nothing"_s});
    write("codex/other/notes.txt", "x");
    write("codex/file", "x");
    fs::create_directory_symlink(path("codex/other"), path("codex/link"));
    const auto at = [this](const char *name, const QString &refusal) {
        return TargetOccupant{TargetKind::codex, QString::fromLatin1(name), path("codex") / name, refusal};
    };
    QList<TargetOccupant> expected{at("other", {}), at("file", u"C’est un fichier."_s),
                                   at("link", u"C’est un lien."_s)};
    EXPECT_EQ(service->occupants(places).result(), expected);
    fs::create_symlink("/etc/passwd", path("codex/other/inner"));
    expected.first().refusal = Error::symlinkUnsupported(u"inner"_s).errorDescription();
    EXPECT_EQ(service->occupants(places).result(), expected) << "as an install would refuse it";

    fs::rename(path("claude"), path("aside"));
    fs::create_directory_symlink(path("aside"), path("claude"));
    write("aside/other/notes.txt", "x");
    EXPECT_EQ(service->occupants(places).result(), expected) << "nothing is installed into a link";
}

TEST_F(Inspection, LeavesOutWhatARestorationWouldInstall)
{
    service->moveToTrash(demo).waitForFinished();
    write("codex/demo/SKILL.md", "canonical");
    write("codex/demo/scripts/run", "run");
    fs::create_directory(path("codex/demo/empty"));
    const QList<TargetPlace> places = placesOfRestored(demo, u"demo"_s);
    EXPECT_TRUE(service->occupants(places).result().isEmpty());
    EXPECT_EQ(service->occupants(placesOf({u"demo"_s})).result().size(), 1)
        << "another skill would replace it";
    write("codex/demo/notes.txt", "x");
    EXPECT_EQ(service->occupants(places).result().size(), 1);
}

/// A service for which a copy that can't be read makes only its own skill fail.
class UnreadableCopy : public Inspection
{
protected:
    UnreadableCopy() : tolerant(manager, FailureScope::Skill)
    {
        create(u"other"_s);
        tolerant.bootstrap(path("workspace"), path("claude"), path("codex")).waitForFinished();
    }

    SyncState state(const QString &slug)
    {
        const QList<SkillSummary> skills = tolerant.reload().result().skills;
        return std::ranges::find(skills, slug, &SkillSummary::slug)->syncState;
    }

    fs::path removed() const
    {
        for (const std::string &name : names("workspace/.vornel/recovery")) {
            if (name.ends_with("-removed-codex-demo"))
                return path("workspace/.vornel/recovery") / name;
        }
        return {};
    }

    LocalWorkspaceService tolerant;
};

TEST_F(UnreadableCopy, HarmsItsOwnSkillAndIsSetAside)
{
    const fs::path place = path("codex/demo");
    const auto inPlaceOfTheCopy = [&](const auto &make) {
        return [this, make] {
            fs::remove_all(path("codex/demo"));
            make();
        };
    };
    const std::vector<std::pair<const char *, std::function<void()>>> cases{
        {"link", [&] { fs::create_symlink("/etc/passwd", place / "link"); }},
        {"pipe", [&] { mkfifo((place / "pipe").c_str(), 0600); }},
        {"too large", [&] { fs::resize_file(write("codex/demo/large", "x"), 26'214'401); }},
        {"not UTF-8", [&] { write("codex/demo/\xFF", "x"); }},
        {"file", inPlaceOfTheCopy([this] { write("codex/demo", "x"); })},
        {"linked copy", inPlaceOfTheCopy([&] { fs::create_directory_symlink(path("claude/demo"), place); })},
    };
    for (const auto &[name, spoil] : cases) {
        write("claude/demo/SKILL.md", "canonical");
        spoil();
        EXPECT_ANY_THROW(service->reload().result()) << name;
        write("claude/demo/SKILL.md", "edited"); // a failed copy doesn't hide this one
        EXPECT_EQ(state(u"demo"_s), SyncState::failed) << name;
        EXPECT_EQ(state(u"other"_s), SyncState::inSync) << name;
        EXPECT_EQ(tolerant.loadSkill(demo).result().syncState, SyncState::failed) << name;
        const QList<CopyInspection> failed = tolerant.wrongCopies().result().value(demo);
        ASSERT_EQ(failed.size(), 1) << name;
        EXPECT_EQ(failed, QList{tolerant.inspectCopies(demo).result().at(1)}) << name;
        EXPECT_TRUE(failed.first().isUnreadable && !failed.first().reason.isEmpty()) << name;

        const fs::file_status stood = fs::symlink_status(place);
        tolerant.setAside(demo, TargetKind::codex).waitForFinished();
        EXPECT_EQ(state(u"demo"_s), SyncState::drifted) << name << ": the other copy isn't touched";
        EXPECT_EQ(fs::symlink_status(removed()).type(), stood.type()) << name;
        EXPECT_EQ(bytesOf(place / "SKILL.md"), "canonical") << name;
        EXPECT_EQ(tolerant.wrongCopies().result().value(demo).first().target, TargetKind::claude) << name;
        fs::remove_all(removed());
        write("claude/demo/SKILL.md", "canonical");
    }
    EXPECT_TRUE(fs::exists(path("claude/demo/SKILL.md"))) << "a link is moved, not followed";
}

TEST_F(UnreadableCopy, IsSetAsideAfterAFailedSynchronisationToo)
{
    fs::create_symlink("/etc/passwd", path("codex/demo/link"));
    EXPECT_EQ(errorOf([&] { tolerant.synchronize(demo).waitForFinished(); }),
              Error::partialSync({TargetKind::codex}));
    EXPECT_EQ(tolerant.setAside(demo, TargetKind::codex).result().syncState, SyncState::inSync);
    EXPECT_TRUE(fs::is_symlink(removed() / "link"));

    fs::rename(path("codex"), path("aside"));
    fs::create_directory_symlink(path("aside"), path("codex"));
    EXPECT_EQ(errorOf([&] { tolerant.setAside(demo, TargetKind::codex).waitForFinished(); }),
              Error::symlinkUnsupported(pathText(path("codex"))));
    EXPECT_TRUE(fs::exists(path("aside/demo/SKILL.md")));
    EXPECT_EQ(state(u"other"_s), SyncState::failed) << "as every skill, whose copy nobody can look at";
    EXPECT_FALSE(tolerant.inspectCopies(demo).result().at(1).isUnreadable) << "none can be set aside";
    for (const QList<CopyInspection> &failed : tolerant.wrongCopies().result())
        EXPECT_FALSE(failed.first().isUnreadable);
}

TEST_F(UnreadableCopy, IsAnotherMatterThanWhatIsWrongInTheLibrary)
{
    const fs::path skill = path("workspace/skills/demo");
    const std::vector<std::pair<std::function<void()>, std::function<void()>>> cases{
        {[&] { fs::create_symlink("/etc/passwd", skill / "link"); }, [&] { fs::remove(skill / "link"); }},
        {[&] { fs::rename(skill / "vornel.json", path("manifest")); },
         [&] { fs::rename(path("manifest"), skill / "vornel.json"); }},
        {[&] {
             fs::rename(skill, path("moved"));
             fs::create_directory_symlink(path("moved"), skill);
         },
         [&] {
             fs::remove(skill);
             fs::rename(path("moved"), skill);
         }},
    };
    for (const auto &[spoil, mend] : cases) {
        spoil();
        const auto strict = errorOf([this] { service->reload().waitForFinished(); });
        try {
            tolerant.reload().waitForFinished();
            ADD_FAILURE() << "no exception";
        } catch (const Error &error) {
            EXPECT_EQ(error, strict);
            EXPECT_EQ(errorMessage(error), strict->errorDescription() +
                                               u"\nCompétence concernée\u00A0: «\u00A0demo\u00A0», dans "_s +
                                               pathText(path("workspace/skills")) + u'.');
            EXPECT_EQ(failedFolder(error), skill);
        }
        EXPECT_EQ(errorMessage(*strict), strict->errorDescription());
        mend();
    }
    EXPECT_EQ(state(u"demo"_s), SyncState::inSync);
}

} // namespace
} // namespace vornel

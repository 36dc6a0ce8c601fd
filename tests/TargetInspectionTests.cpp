#include "Scratch.h"

#include <VORNELCore/ErrorMessage.h>
#include <VORNELCore/SerializedForms.h>

using namespace Qt::StringLiterals;

namespace vornel {

void PrintTo(const FileDifference &difference, std::ostream *stream)
{
    *stream << rawValue(difference.change).toStdString() << ' ' << difference.relativePath.toStdString();
}

namespace {

namespace fs = std::filesystem;
using Error = VORNELWorkspaceError;
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

    TargetInspection inspect(TargetKind target)
    {
        const QList<TargetInspection> all = service->inspectTargets(demo).result();
        EXPECT_EQ(all.size(), 2);
        EXPECT_EQ(all.at(static_cast<int>(target)).target, target);
        return all.at(static_cast<int>(target));
    }

    std::optional<QByteArray> read(std::optional<TargetKind> copy, const QString &file)
    {
        return service->readFile(demo, copy, file).result();
    }

    const TargetInspection inSync{TargetKind::claude, SyncState::inSync, {}, {}};
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
    const fs::path copy = path("codex/demo");
    const std::vector<Case> cases{
        {"nothing", [] {}, {}},
        {"same size", [&] { write("codex/demo/SKILL.md", "CANONICAL"); }, {{u"SKILL.md"_s, changed}}},
        {"added", [&] { write("codex/demo/é.txt", "x"); }, {{u"é.txt"_s, added}}},
        {"removed", [&] { fs::remove(copy / "SKILL.md"); }, {{u"SKILL.md"_s, removed}}},
        {"nested", [&] { write("codex/demo/scripts/run", ""); }, {{u"scripts/run"_s, changed}}},
        {"folder with a file", [&] { write("codex/demo/a/b/c", "x"); }, {{u"a/b/c"_s, added}}},
        {"folder of what does not count", [&] { write("codex/demo/a/.x", "x"); }, {{u"a/"_s, added}}},
        {"emptied folder", [&] { fs::remove(copy / "scripts/run"); }, {{u"scripts/run"_s, removed}}},
        {"empty folder", [&] { fs::remove(copy / "empty"); }, {{u"empty/"_s, removed}}},
        {"file for a folder",
         [&] {
             fs::remove(copy / "empty");
             write("codex/demo/empty", "x");
         },
         {{u"empty"_s, added}, {u"empty/"_s, removed}}},
        {"folder for a file",
         [&] {
             fs::remove(copy / "SKILL.md");
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
        const TargetInspection codex = inspect(TargetKind::codex);
        EXPECT_EQ(codex.differences, next.differences) << next.name;
        EXPECT_EQ(codex.state, next.differences.isEmpty() ? SyncState::inSync : SyncState::drifted)
            << next.name;
        EXPECT_EQ(codex.state, stateOf(u"demo"_s)) << next.name;
        EXPECT_EQ(inspect(TargetKind::claude), inSync) << next.name;
        fs::remove_all(copy);
        service->synchronize(demo).waitForFinished();
    }
}

TEST_F(Inspection, TellsEveryCopyApart)
{
    const TargetInspection missing{TargetKind::codex, SyncState::missing, {}, {}};
    fs::remove_all(path("codex/demo"));
    EXPECT_EQ(inspect(TargetKind::codex), missing);
    fs::remove_all(path("codex"));
    EXPECT_EQ(inspect(TargetKind::codex), missing);
    fs::create_directory_symlink(path("claude"), path("codex"));
    EXPECT_EQ(inspect(TargetKind::codex).state, SyncState::failed);
    EXPECT_EQ(inspect(TargetKind::claude), inSync);

    fs::remove(path("codex"));
    write("codex/demo/SKILL.md", "edited");
    fs::create_symlink("/etc/passwd", path("claude/demo/scripts/link"));
    const TargetInspection linked = inspect(TargetKind::claude);
    EXPECT_EQ(linked.state, SyncState::failed);
    EXPECT_EQ(linked.reason, errorMessage(Error::symlinkUnsupported(u"scripts/link"_s)));
    EXPECT_EQ(linked.assistant(), u"Claude"_s);
    EXPECT_EQ(linked.stateText(), u"échec"_s);
    EXPECT_EQ(inspect(TargetKind::codex).state, SyncState::drifted);
}

TEST_F(Inspection, RemembersAFailedSynchronisation)
{
    fs::create_symlink("/etc/passwd", path("codex/demo/link"));
    EXPECT_EQ(errorOf([&] { service->synchronize(demo).waitForFinished(); }),
              Error::partialSync({TargetKind::codex}));
    fs::remove(path("codex/demo/link"));
    write("codex/demo/SKILL.md", "edited");
    const TargetInspection failed = inspect(TargetKind::codex);
    EXPECT_EQ(failed.state, SyncState::failed);
    EXPECT_EQ(failed.reason, Error::symlinkUnsupported(u"link"_s).errorDescription());
    EXPECT_EQ(failed.differences, (QList<FileDifference>{{u"SKILL.md"_s, changed}}));
    EXPECT_EQ(inspect(TargetKind::claude), inSync);
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

TEST_F(Inspection, RefusesAPathOutOfTheSkill)
{
    write("codex/other/file", "x");
    EXPECT_EQ(errorOf([&] { read(TargetKind::codex, u"../other/file"_s); }),
              Error::invalidPath(PathViolation::parentTraversal));
    EXPECT_EQ(errorOf([&] { read(TargetKind::codex, pathText(path("codex/other/file"))); }),
              Error::invalidPath(PathViolation::absolute));
}

TEST_F(Inspection, FollowsNoLinkToAFile)
{
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

TEST_F(Inspection, NamesAnUnknownSkill)
{
    const QUuid nobody = QUuid::createUuid();
    EXPECT_EQ(errorOf([&] { service->inspectTargets(nobody).waitForFinished(); }),
              Error::skillNotFound(nobody));
    EXPECT_EQ(errorOf([&] { service->readFile(nobody, std::nullopt, u"SKILL.md"_s).waitForFinished(); }),
              Error::skillNotFound(nobody));
}

} // namespace
} // namespace vornel

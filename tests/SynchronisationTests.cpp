#include "FaultyFileSystem.h"
#include "Scratch.h"

#include <VORNELCore/SerializedForms.h>

using namespace Qt::StringLiterals;

namespace vornel {
namespace {

namespace fs = std::filesystem;
using Error = VORNELWorkspaceError;

class Synchronisation : public testing::Test, protected TestWorkspace
{
protected:
    Synchronisation() : demo(create(u"demo"_s, u"canonical"_s).manifest.id) {}

    SyncState state() { return stateOf(u"demo"_s); }
    SkillDetail synchronize() { return service->synchronize(demo).result(); }
    std::optional<Error> failure()
    {
        return errorOf([&] { synchronize(); });
    }

    QUuid demo;
};

TEST_F(Synchronisation, TellsMissingBeforeDrifted)
{
    EXPECT_EQ(state(), SyncState::inSync);
    write("codex/demo/SKILL.md", "edited");
    EXPECT_EQ(state(), SyncState::drifted);
    fs::remove_all(path("claude/demo"));
    EXPECT_EQ(state(), SyncState::missing);
    write("claude/demo/SKILL.md", "canonical");
    fs::remove_all(path("codex"));
    EXPECT_EQ(state(), SyncState::missing);
    write("codex/demo/SKILL.md", "canonical");
    write("codex/demo/.hidden", "not compared");
    write("codex/demo/vornel.json", "not compared");
    EXPECT_EQ(state(), SyncState::inSync);
}

TEST_F(Synchronisation, ReplacesForeignFoldersAndLeavesNothingBehind)
{
    write("codex/demo/SKILL.md", "edited");
    write("codex/demo/more/file", "foreign");
    fs::remove_all(path("claude"));
    const SkillDetail detail = synchronize();
    EXPECT_EQ(detail.syncState, SyncState::inSync);
    EXPECT_EQ(tree("codex"),
              (std::map<std::string, std::string>{{"demo/", ""}, {"demo/SKILL.md", "canonical"}}));
    EXPECT_EQ(permissionsOf(path("claude")), 0700);
    EXPECT_TRUE(names("workspace/.vornel/recovery").empty());
    EXPECT_TRUE(names("workspace/.vornel/staging").empty());
}

TEST_F(Synchronisation, WritesNothingWhereNothingDiffers)
{
    const auto stamp = fs::last_write_time(path("claude/demo"));
    const auto files = tree("");
    synchronize();
    EXPECT_EQ(fs::last_write_time(path("claude/demo")), stamp);
    EXPECT_EQ(tree(""), files);
}

TEST_F(Synchronisation, RemembersAFailedTargetUntilItSucceeds)
{
    fs::create_symlink("/etc/passwd", path("codex/demo/link"));
    write("claude/demo/SKILL.md", "edited");
    EXPECT_EQ(failure(), Error::partialSync({TargetKind::codex}));
    EXPECT_EQ(bytesOf(path("claude/demo/SKILL.md")), "canonical");
    EXPECT_TRUE(fs::is_symlink(path("codex/demo/link")));
    EXPECT_EQ(state(), SyncState::failed);

    fs::remove(path("codex/demo/link"));
    EXPECT_EQ(state(), SyncState::failed);
    EXPECT_EQ(synchronize().syncState, SyncState::inSync);
    EXPECT_EQ(state(), SyncState::inSync);
}

TEST_F(Synchronisation, NeverFollowsATargetThatBecameALink)
{
    write("elsewhere/file", "x");
    fs::rename(path("codex"), path("aside"));
    fs::create_directory_symlink(path("elsewhere"), path("codex"));
    EXPECT_EQ(failure(), Error::partialSync({TargetKind::codex}));
    EXPECT_EQ(state(), SyncState::failed);
    fs::remove(path("codex"));
    fs::rename(path("aside"), path("codex"));

    fs::remove_all(path("claude/demo"));
    fs::create_directory_symlink(path("elsewhere"), path("claude/demo"));
    EXPECT_EQ(failure(), Error::partialSync({TargetKind::claude}));
    EXPECT_EQ(names("elsewhere"), std::vector<std::string>{"file"});

    EXPECT_EQ(errorOf([&] { service->moveToTrash(demo).result(); }),
              Error::partialSync({TargetKind::claude}));
    EXPECT_TRUE(fs::is_symlink(path("claude/demo")));
}

TEST_F(Synchronisation, ReportsAMissingTextAfterInstalling)
{
    fs::remove(path("workspace/skills/demo/SKILL.md"));
    EXPECT_EQ(failure(), Error::missingSkillFile(u"demo"_s));
    EXPECT_FALSE(fs::exists(path("claude/demo/SKILL.md")));
    const QUuid nobody = QUuid::createUuid();
    EXPECT_EQ(errorOf([&] { service->synchronize(nobody).result(); }), Error::skillNotFound(nobody));
}

TEST(Install, PutsTheFormerCopyBackWhenTheNewOneCannotBeMovedIn)
{
    const auto files = std::make_shared<FaultyFileSystem>();
    TestWorkspace workspace(files);
    const QUuid id = workspace.create(u"demo"_s).manifest.id;
    workspace.write("codex/demo/SKILL.md", "edited");
    files->refusesRename = [&](const fs::path &from, const fs::path &to) {
        return to == workspace.path("codex/demo") && from.parent_path().filename() == "staging";
    };
    for (const bool canExchange : {true, false}) {
        files->canExchange = canExchange;
        EXPECT_EQ(errorOf([&] { workspace.service->synchronize(id).result(); }),
                  Error::partialSync({TargetKind::codex}));
        EXPECT_EQ(bytesOf(workspace.path("codex/demo/SKILL.md")), "edited");
        EXPECT_TRUE(workspace.names("workspace/.vornel/recovery").empty());
        EXPECT_TRUE(workspace.names("workspace/.vornel/staging").empty());
    }
}

TEST(Swap, PutsTheFormerFolderBackWhenTheNewOneCannotBeMovedIn)
{
    const auto files = std::make_shared<FaultyFileSystem>();
    TestWorkspace workspace(files);
    const QUuid id = workspace.create(u"demo"_s, u"old"_s).manifest.id;
    const fs::path canonical = workspace.path("workspace/skills/demo");
    files->canExchange = false;
    files->refusesRename = [&](const fs::path &from, const fs::path &to) {
        return to == canonical && from.parent_path().filename() == "staging";
    };
    EXPECT_THROW(workspace.service->saveSkill(id, 1, u"new"_s).result(), fs::filesystem_error);
    EXPECT_EQ(workspace.service->loadSkill(id).result().skillMD, u"old"_s);
    EXPECT_TRUE(workspace.names("workspace/.vornel/recovery").empty());

    // As after a crash between the two moves: the next start finds the folder in recovery.
    files->refusesRename = [&](const fs::path &, const fs::path &to) { return to == canonical; };
    EXPECT_THROW(workspace.service->saveSkill(id, 1, u"new"_s).result(), fs::filesystem_error);
    EXPECT_FALSE(fs::exists(canonical));
    files->refusesRename = nullptr;
    workspace.restart();
    EXPECT_EQ(workspace.service->loadSkill(id).result().skillMD, u"old"_s);
}

} // namespace
} // namespace vornel

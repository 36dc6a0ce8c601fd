#include "FaultyFileSystem.h"
#include "Scratch.h"

#include <VORNELCore/Records/SerializedForms.h>

#include <algorithm>
#include <set>
#include <thread>

using namespace Qt::StringLiterals;

namespace vornel {
namespace {

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

    std::string history() const { return "workspace/.vornel/history/" + uuidText(demo).toStdString(); }

    /// What the history keeps of replaced folders of this origin.
    std::vector<Tree> replaced(const std::string &origin) const
    {
        return trees(history(), "replaced-" + origin + '-');
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

TEST_F(Synchronisation, KeepsWhatTheHistoryDoesNotHold)
{
    fs::create_symlink("/etc/passwd", path("codex/demo/link"));
    write("codex/demo/SKILL.md", "theirs");
    write("codex/demo/.git/config", "hidden");
    write("claude/demo/SKILL.md", "edited");
    const auto edited = tree("claude/demo");
    EXPECT_EQ(failure(), Error::partialSync({TargetKind::codex}));
    EXPECT_EQ(bytesOf(path("claude/demo/SKILL.md")), "canonical");
    EXPECT_TRUE(fs::is_symlink(path("codex/demo/link")));
    fs::remove(path("codex/demo/link"));
    EXPECT_EQ(state(), SyncState::failed) << "until it succeeds";
    const auto theirs = tree("codex/demo");
    EXPECT_EQ(synchronize().syncState, SyncState::inSync);
    EXPECT_EQ(replaced("codex"), std::vector{theirs}) << "of whatever cause it stood there";
    EXPECT_EQ(replaced("claude"), std::vector{edited});

    write("claude/demo/SKILL.md", "edited");
    service->saveSkill(demo, 1, u"new"_s).waitForFinished();
    write("claude/demo/SKILL.md", "canonical");
    synchronize();
    EXPECT_EQ(replaced("claude"), std::vector{edited})
        << "the same, and an older revision, are there already";
    write("claude/demo/.env", "hidden");
    const auto withHidden = tree("claude/demo");
    service->saveSkill(demo, 2, u"newer"_s).waitForFinished();
    EXPECT_EQ(replaced("claude").size(), 2U);
    EXPECT_TRUE(std::ranges::count(replaced("claude"), withHidden)) << "no revision holds hidden files";

    write("workspace/skills/demo/.git/config", "hidden");
    const auto library = tree("workspace/skills/demo");
    service->saveSkill(demo, 3, u"newest"_s).waitForFinished();
    EXPECT_EQ(replaced("library"), std::vector{library});
    EXPECT_TRUE(names("workspace/.vornel/recovery").empty());

    fs::remove_all(path(history()));
    write("codex/demo/SKILL.md", "theirs");
    synchronize();
    EXPECT_EQ(replaced("codex").size(), 1U) << "also where there was no history left";
}

TEST_F(Synchronisation, WritesNothingWhereNothingDiffers)
{
    const auto stamp = fs::last_write_time(path("claude/demo"));
    const auto files = tree("");
    synchronize();
    EXPECT_EQ(fs::last_write_time(path("claude/demo")), stamp);
    EXPECT_EQ(tree(""), files);
}

TEST_F(Synchronisation, TakesSeveralInOneGoAndPastFailures)
{
    write("workspace/skills/demo/sub/vornel.json", "is in no copy");
    const QUuid right = create(u"right"_s).manifest.id;
    const QUuid broken = create(u"broken"_s).manifest.id;
    const QUuid nobody = QUuid::createUuid();
    fs::remove_all(path("claude/broken"));
    write("claude/broken", "a file");
    const auto outcomes = service->synchronizeSkills({right, broken, nobody, demo}, {}).result();
    ASSERT_EQ(outcomes.size(), 4);
    EXPECT_EQ(errorOf([&] { std::rethrow_exception(outcomes[1].failure); }),
              Error::partialSync({TargetKind::claude}));
    EXPECT_EQ(errorOf([&] { std::rethrow_exception(outcomes[2].failure); }), Error::skillNotFound(nobody));
    EXPECT_EQ(outcomes[3].detail, service->loadSkill(demo).result());
    EXPECT_EQ(stateOf(u"broken"_s), SyncState::failed);

    fs::remove(path("claude/broken"));
    write("claude/broken/SKILL.md", "texte");
    const auto pass = service->synchronizeSkills({demo, right, broken}, {});
    for (const SyncOutcome &outcome : pass.result())
        EXPECT_EQ(outcome.detail, service->loadSkill(outcome.id).result()) << "is read whole, and in sync";
    EXPECT_EQ(pass.progressValue(), 3);
    EXPECT_EQ(stateOf(u"broken"_s), SyncState::inSync);

    std::stop_source stopped;
    stopped.request_stop();
    const auto begun = service->synchronizeSkills({demo, right}, stopped.get_token()).result();
    EXPECT_EQ(begun.size(), 1);
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

QList<QUuid> createTwenty(TestWorkspace &workspace)
{
    QList<QUuid> ids;
    for (int number = 0; number < 20; ++number)
        ids.append(workspace.create(u"skill-%1"_s.arg(number)).manifest.id);
    return ids;
}

TEST(SynchronizationPass, LooksAtEachSkillOnce)
{
    const auto files = std::make_shared<FaultyFileSystem>();
    TestWorkspace workspace(files);
    const QList<QUuid> ids = createTwenty(workspace);
    files->failAt(0, FaultyFileSystem::Call::Look);
    workspace.service->reload().result();
    const int overview = files->calls();
    files->failAt(0, FaultyFileSystem::Call::Look);
    workspace.service->synchronizeSkills(ids, {}).result();
    EXPECT_LE(files->calls(), 2 * overview);
}

TEST(SynchronizationPass, LetsOthersInMeanwhile)
{
    const auto files = std::make_shared<SteppedFileSystem>();
    TestWorkspace workspace(files);
    const QList<QUuid> ids = createTwenty(workspace);
    fs::remove_all(workspace.path("codex"));
    files->around = [](const Step &step, const SteppedFileSystem::Make &make) {
        if (step.kind == Step::Kind::Rename)
            std::this_thread::sleep_for(std::chrono::milliseconds(50));
        make();
    };
    const auto pass = workspace.service->synchronizeSkills(ids, {});
    EXPECT_EQ(workspace.service->reload().result().skills.size(), 20);
    EXPECT_FALSE(pass.isFinished());
    EXPECT_EQ(pass.result().size(), 20);
    files->reset();
    EXPECT_EQ(workspace.stateOf(u"skill-19"_s), SyncState::inSync);
}

TEST(Install, KeepsAStrangersFolderEvenWhenTheSkillIsDeleted)
{
    const auto files = std::make_shared<FaultyFileSystem>();
    TestWorkspace workspace(files);
    workspace.write("codex/demo/SKILL.md", "theirs");
    workspace.write("codex/demo/.hidden/more", "theirs");
    const Tree stranger = workspace.tree("codex/demo");
    bool isRefused = false;
    files->refusesRename = [&](const fs::path & /*from*/, const fs::path &to) {
        return to == workspace.path("codex/demo") && !std::exchange(isRefused, true);
    };
    EXPECT_EQ(errorOf([&] { workspace.create(u"demo"_s); }), Error::partialSync({TargetKind::codex}));
    EXPECT_EQ(workspace.tree("codex/demo"), stranger) << "is put back";
    EXPECT_EQ(workspace.names("codex"), std::vector<std::string>{"demo"});

    const QUuid id = workspace.service->reload().result().skills.first().id;
    workspace.service->synchronize(id).waitForFinished();
    EXPECT_EQ(workspace.names("codex/demo"), std::vector<std::string>{"SKILL.md"});
    const std::string history = "workspace/.vornel/history/" + uuidText(id).toStdString();
    EXPECT_EQ(workspace.trees(history, "replaced-codex-"), std::vector{stranger});
}

/// A skill whose copies are written to just before something takes the place of what stands at a path.
class LateWriter : public testing::Test, protected TestWorkspace
{
protected:
    LateWriter() : TestWorkspace(std::make_shared<SteppedFileSystem>()), demo(create(u"demo"_s).manifest.id)
    {}

    void writeBefore(RenameMode mode, const std::string &replaced, const std::string &file)
    {
        static_cast<SteppedFileSystem &>(*manager).around =
            [=, this, isDone = false](const Step &step, const SteppedFileSystem::Make &make) mutable {
                if (step.kind == Step::Kind::Rename && step.mode == mode && !isDone &&
                    fs::path(step.to->folder.path) / step.to->name == path(replaced)) {
                    isDone = true;
                    write(file, "late");
                }
                make();
            };
    }

    /// How many texts of this kind the history holds.
    std::ptrdiff_t kept(const std::string &text) const
    {
        const fs::path history = path("workspace/.vornel/history/" + uuidText(demo).toStdString());
        std::ptrdiff_t found = 0;
        for (const auto &entry : fs::recursive_directory_iterator(history)) {
            const bool isThere = entry.is_regular_file() && bytesOf(entry.path()) == text;
            EXPECT_TRUE(!isThere || entry.hard_link_count() == 1) << entry.path();
            found += isThere ? 1 : 0;
        }
        return found;
    }

    const QUuid demo;
};

TEST_F(LateWriter, LosesNothingInAFolderThatIsReplaced)
{
    write("workspace/skills/demo/added", "more");
    writeBefore(RenameMode::Exchange, "claude/demo", "claude/demo/late");
    service->saveSkill(demo, 1, u"two"_s).result();
    EXPECT_EQ(kept("late"), 1);
    EXPECT_FALSE(fs::exists(path("claude/demo/late")));

    writeBefore(RenameMode::Exchange, "workspace/skills/demo", "workspace/skills/demo/late");
    service->saveSkill(demo, 2, u"three"_s).result();
    EXPECT_EQ(kept("late"), 2);
}

TEST_F(LateWriter, NeverStandsForWhatWasSaved)
{
    auto &disk = static_cast<SteppedFileSystem &>(*manager);
    disk.around = [&](const Step &step, const auto &make) {
        make();
        if (step.kind == Step::Kind::Rename && step.mode == RenameMode::Exchange && step.to->name == "demo")
            write("workspace/skills/demo/SKILL.md", "late");
    };
    EXPECT_EQ(service->saveSkill(demo, 1, u"two"_s).result().skillMD, u"late"_s);
    disk.reset();
    EXPECT_EQ(kept("two"), 1);
    service->saveSkill(demo, 2, u"three"_s).result();
    EXPECT_EQ(kept("late"), 1);
}

/// Nor does it copy what is too large to be a skill's.
TEST_F(LateWriter, IsKeptWithoutCopyingWhatNothingShares)
{
    constexpr std::uintmax_t endless = 1'000'000'000'000;
    const fs::path history = path("workspace/.vornel/history/" + uuidText(demo).toStdString());
    write("workspace/skills/demo/same", "same");
    static_cast<SteppedFileSystem &>(*manager).around = [&](const Step &step, const auto &make) {
        make();
        if (step.kind == Step::Kind::Rename && step.mode == RenameMode::Exchange)
            fs::resize_file(fs::path(step.from->folder.path) / step.from->name / "SKILL.md", endless);
    };
    service->saveSkill(demo, 1, u"two"_s).result();
    const auto entries = fs::recursive_directory_iterator(history);
    EXPECT_EQ(std::ranges::count_if(entries,
                                    [](const fs::directory_entry &entry) {
                                        return entry.is_regular_file() && entry.file_size() == endless;
                                    }),
              3)
        << "the former folder of the library, and both copies";
    EXPECT_EQ(bytesOf(path("workspace/skills/demo/same")), "same");
    for (const auto &entry : fs::recursive_directory_iterator(path("workspace/skills")))
        EXPECT_TRUE(entry.is_directory() || entry.hard_link_count() == 1) << entry.path();
}

TEST_F(LateWriter, LosesNothingThatTheOtherCopyHadToo)
{
    for (const char *copy : {"claude/demo/own", "codex/demo/own"})
        write(copy, "of both");
    writeBefore(RenameMode::Exchange, "claude/demo", "claude/demo/own");
    service->synchronize(demo).result();
    EXPECT_EQ(kept("late"), 1);
    EXPECT_EQ(kept("of both"), 1);
}

TEST_F(LateWriter, KeepsAFileThatWasToBeReplaced)
{
    writeBefore(RenameMode::OntoFile, "claude/demo/SKILL.md", "codex/demo/SKILL.md");
    EXPECT_EQ(errorOf([&] { service->saveSkill(demo, 1, u"two"_s).result(); }),
              Error::partialSync({TargetKind::codex}));
    EXPECT_EQ(bytesOf(path("codex/demo/SKILL.md")), "late");
    service->synchronize(demo).result();
    EXPECT_EQ(kept("late"), 1);
    EXPECT_EQ(bytesOf(path("codex/demo/SKILL.md")), "two");
}

TEST(Swap, WorksWhereAFolderCannotEvenBeRenamed)
{
    const auto files = std::make_shared<FaultyFileSystem>();
    TestWorkspace workspace(files);
    const QUuid id = workspace.create(u"demo"_s, u"old"_s).manifest.id;
    workspace.write("codex/demo/own", "edited");
    const std::set<fs::path> lower{workspace.path("workspace/skills/demo"), workspace.path("codex/demo")};
    files->isFixed = [&](const fs::path &folder) { return lower.contains(folder); };
    EXPECT_EQ(workspace.service->saveSkill(id, 1, u"new"_s).result().syncState, SyncState::inSync);
    EXPECT_EQ(workspace.service->loadSkill(id).result().skillMD, u"new"_s);

    workspace.write("codex/demo/own", "edited again");
    workspace.service->moveToTrash(id).waitForFinished();
    EXPECT_FALSE(fs::exists(workspace.path("codex/demo")));
    EXPECT_FALSE(fs::exists(workspace.path("workspace/skills/demo")));
    EXPECT_NO_THROW(workspace.service->restore(id).result());
    EXPECT_EQ(workspace.stateOf(u"demo"_s), SyncState::inSync);
}

TEST(Swap, NeverTakesTheOnlyCopyForALeftover)
{
    const auto files = std::make_shared<FaultyFileSystem>();
    TestWorkspace workspace(files);
    const QUuid id = workspace.create(u"demo"_s, u"first"_s).manifest.id;
    const fs::path canonical = workspace.path("workspace/skills/demo");
    const fs::path parked = workspace.path("workspace/.vornel/recovery") /
                            (uuidText(QUuid::createUuid()) + u"-canonical-demo"_s).toStdString();
    // What a program leaves that was killed between the two steps of a swap.
    fs::rename(canonical, parked);
    EXPECT_EQ(errorOf([&] { workspace.create(u"demo"_s, u"second"_s); }), Error::duplicateSlug(u"demo"_s));
    EXPECT_EQ(workspace.service->loadSkill(id).result().skillMD, u"first"_s);

    workspace.create(u"third"_s);
    fs::rename(canonical, parked);
    fs::rename(workspace.path("workspace/skills/third"), canonical);
    std::string manifest = bytesOf(canonical / "vornel.json");
    for (auto at = manifest.find("third"); at != std::string::npos; at = manifest.find("third"))
        manifest.replace(at, 5, "demo");
    workspace.write("workspace/skills/demo/vornel.json", manifest);
    workspace.restart();
    EXPECT_EQ(bytesOf(parked / "SKILL.md"), "first");
}

} // namespace
} // namespace vornel

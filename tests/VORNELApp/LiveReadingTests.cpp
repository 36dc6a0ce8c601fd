/// What the window reads by itself, on the real service and watch.

#include "Scratch.h"

#include <VORNELApp/Model/AppModel.h>
#include <VORNELInfrastructure/Drafts/LocalDrafts.h>

#include <QCoro/QCoroTask>
#include <QElapsedTimer>
#include <QProcess>
#include <QTest>

using namespace std::chrono_literals;
using namespace Qt::StringLiterals;

namespace vornel {
namespace {

constexpr GatheringTime shortTime{20ms, 60ms};

/// The real service, which counts the readings that no action of the user has asked for.
class CountingService : public LocalWorkspaceService
{
public:
    explicit CountingService(std::shared_ptr<WorkspaceWatch> watch)
        : LocalWorkspaceService(std::make_shared<PosixFileSystem>(), FailureScope::Skill, std::move(watch))
    {}

    QFuture<WorkspaceOverview> reload() override
    {
        ++(model->isWorking() ? readingsAtWork : readings);
        return LocalWorkspaceService::reload();
    }

    const AppModel *model = nullptr;
    int readings = 0;
    int readingsAtWork = 0;
};

/// A library with "audit" and "notes".
struct LiveReadingTest : testing::Test
{
    void open(GatheringTime time = {}, int mostFolders = std::numeric_limits<int>::max())
    {
        watch = std::make_shared<WorkspaceWatch>(time, mostFolders);
        service = std::make_shared<CountingService>(watch);
        model = std::make_unique<AppModel>(
            service, scratch.path("workspace"), scratch.path("claude"), scratch.path("codex"),
            std::make_shared<QSettings>(u"/dev/null"_s, QSettings::IniFormat),
            std::make_shared<LocalDrafts>(std::make_shared<PosixFileSystem>(), scratch.path("workspace")),
            watch);
        service->model = model.get();
        QCoro::waitFor(model->start());
        for (const auto &slug : {u"audit"_s, u"notes"_s})
            QCoro::waitFor(model->createSkill(requestFor(slug)));
        model->closeSkill();
        settle();
    }

    void settle() const
    {
        EXPECT_TRUE(QTest::qWaitFor([this] { return !model->isBusy(); }));
    }

    /// Does something, and waits until it would have been told.
    template <typename Action>
    void own(const Action &action) const
    {
        action();
        settle();
        EXPECT_EQ(model->errorMessage(), QString());
        QTest::qWait(100);
        EXPECT_FALSE(watch->isOverviewOutdated());
    }

    QUuid id(Destination destination = Destination::library) const
    {
        return model->skills(destination).first().id;
    }
    SyncState state() const { return model->skills(Destination::library).first().syncState; }
    void edit() const { scratch.write("claude/audit/SKILL.md", "édité"); }

    Scratch scratch;
    std::shared_ptr<WorkspaceWatch> watch;
    std::shared_ptr<CountingService> service;
    std::unique_ptr<AppModel> model;
};

TEST_F(LiveReadingTest, GathersWhatAnotherProcessWritesForTenSeconds)
{
    open();
    const QString script = uR"(
        cp -r audit before
        end=$(($(date +%s%N) + 5000000000)); i=0
        while [ $(date +%s%N) -lt $end ]; do i=$((i + 1)); echo $i >audit/$i.md; echo $i >>audit/SKILL.md; sleep 0.02; done
        mkdir -p neuve/scripts
        end=$((end + 5000000000))
        while [ $(date +%s%N) -lt $end ]; do i=$((i + 1)); echo $i >neuve/SKILL.md; echo $i >neuve/scripts/$i; sleep 0.02; done
        rm audit/*; cp before/* audit
    )"_s;
    QProcess assistant;
    assistant.setWorkingDirectory(pathText(scratch.path("claude")));
    assistant.start(u"sh"_s, {u"-ec"_s, script});
    ASSERT_TRUE(QTest::qWaitFor([this] { return state() == SyncState::drifted; }, 2000)) << "while it writes";
    ASSERT_TRUE(QTest::qWaitFor([this] { return scratch.names("claude").size() == 4; }, 10000));
    const int firstReadings = service->readings;
    ASSERT_TRUE(QTest::qWaitFor([&] { return assistant.state() == QProcess::NotRunning; }, 20000));
    QElapsedTimer sinceEnd;
    sinceEnd.start();
    EXPECT_EQ(assistant.exitCode(), 0);
    const int laterReadings = service->readings - firstReadings;
    EXPECT_TRUE(QTest::qWaitFor([this] { return state() == SyncState::inSync; }));
    EXPECT_LT(sinceEnd.elapsed(), 2000);
    std::printf("readings: %d, then %d of a new skill\n", firstReadings, laterReadings);
    for (const int readings : {firstReadings, laterReadings}) {
        EXPECT_GE(readings, 2);
        EXPECT_LE(readings, 5);
    }
    const int readings = service->readings;
    QTest::qWait(2000);
    EXPECT_EQ(service->readings, readings) << "once nothing is written any more";
}

TEST_F(LiveReadingTest, ReadsNothingAfterWhatTheUserHasDone)
{
    open(shortTime);
    own([&] { model->selectSkill(id()); });
    own([&] { QCoro::waitFor(model->saveSelectedSkill(u"neuf"_s)); });
    own([&] { model->assignSelectedSkill(u"quality"_s); });
    own([&] { QCoro::waitFor(model->createCategory(u"Neuve"_s, u"21D6D1"_s)); });
    own([&] { model->drafts().keepDraft(id(), {u"x"_s, u"y"_s, {}}).waitForFinished(); });
    own([&] { model->newSkills().ignoreNewSkills({{TargetKind::claude, u"autre"_s}}).waitForFinished(); });
    own([&] { model->moveSelectedSkillToTrash(); });
    own([&] { model->restore(id(Destination::trash)); });
    own([&] { model->moveSkillsToTrash({id()}); });
    own([&] { model->emptyTrash(); });
    EXPECT_EQ(service->readings, 0);

    scratch.write("claude/notes/SKILL.md", "édité");
    EXPECT_TRUE(QTest::qWaitFor([this] { return state() == SyncState::drifted; }));
    scratch.write("codex/neuve/SKILL.md", "name: neuve");
    EXPECT_TRUE(QTest::qWaitFor([this] { return service->readings == 2; }));
    settle();
    own([&] { model->synchronizeSkill(id()); });
    EXPECT_EQ(state(), SyncState::inSync);
    own([&] { model->beginImportScan(); });
    own([&] { model->commitImport(); });
    EXPECT_EQ(model->skills(Destination::library).size(), 2);
    own([&] { fs::create_symlink("nulle-part", scratch.path("claude/notes/lien")), model->reload(); });
    own([&] { model->setCopyAside(id(Destination::needsAttention), TargetKind::claude); });
    EXPECT_EQ(state(), SyncState::inSync);
    EXPECT_EQ(service->readings, 2);
}

TEST_F(LiveReadingTest, WaitsForOperationsAndForTheReadingThatIsUnderWay)
{
    open(shortTime);
    service->readingsAtWork = 0;
    {
        const WorkspaceHold hold(scratch.path("workspace"));
        model->moveSkillsToTrash({model->skills(Destination::library).last().id});
        edit();
        QTest::qWait(200);
        EXPECT_TRUE(watch->isOverviewOutdated());
    }
    settle();
    QTest::qWait(200);
    EXPECT_EQ(service->readings + service->readingsAtWork, 0) << "the operation has read it";
    EXPECT_EQ(state(), SyncState::drifted);
    {
        const WorkspaceHold hold(scratch.path("workspace"));
        for (int time = 0; time < 5; ++time) {
            edit();
            QTest::qWait(100);
        }
        EXPECT_EQ(service->readings, 1);
    }
    settle();
    EXPECT_EQ(service->readings, 1);
}

TEST_F(LiveReadingTest, LooksWhenTheUserComesBackWhereWatchesHaveRunOut)
{
    open(shortTime, 2);
    EXPECT_FALSE(watch->isComplete());
    edit();
    QTest::qWait(2100);
    EXPECT_EQ(service->readings, 0);
    model->lookForChanges();
    settle();
    EXPECT_EQ(state(), SyncState::drifted);
    model->lookForChanges();
    EXPECT_EQ(service->readings, 1) << "so soon again";
    open(shortTime);
    QTest::qWait(2100);
    model->lookForChanges();
    EXPECT_EQ(service->readings, 0) << "nothing is unseen";
}

} // namespace
} // namespace vornel

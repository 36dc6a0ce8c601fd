/// The application model on the real service in temporary folders.

#include "Scratch.h"

#include <VORNELApp/App/AppEnvironment.h>
#include <VORNELApp/Model/AppModel.h>
#include <VORNELInfrastructure/Drafts/LocalDrafts.h>
#include <VORNELInfrastructure/Workspace/DefaultWorkspaceLocator.h>

#include <QCoro/QCoroTask>
#include <QGuiApplication>
#include <QTest>
#include <QTimer>

#include <functional>

using namespace Qt::StringLiterals;

namespace vornel {
namespace {

const QString onboardingKey = u"com.brindlecove.vornel.onboarding.completed.v3"_s;

/// The real service, of which single answers can be made to fail.
class RealService : public LocalWorkspaceService
{
public:
    RealService() : LocalWorkspaceService(std::make_shared<PosixFileSystem>(), FailureScope::Skill) {}

    QFuture<WorkspaceOverview> reload() override
    {
        return failsToReload ? failure<WorkspaceOverview>() : LocalWorkspaceService::reload();
    }

    QFuture<SkillDetail> loadSkill(QUuid id) override
    {
        return failsToLoad ? failure<SkillDetail>() : LocalWorkspaceService::loadSkill(id);
    }

    bool failsToReload = false;
    bool failsToLoad = false;

private:
    template <typename T>
    static QFuture<T> failure()
    {
        QPromise<T> promise;
        promise.start();
        promise.setException(std::make_exception_ptr(VORNELWorkspaceError::integrityFailure(u"illisible"_s)));
        promise.finish();
        return promise.future();
    }
};

/// The real drafts, of which that of one skill is found when the test says so.
class HeldDrafts : public LocalDrafts
{
public:
    using LocalDrafts::LocalDrafts;

    QFuture<std::optional<KeptDraft>> draft(QUuid id) override
    {
        return id == heldID ? answer.future() : LocalDrafts::draft(id);
    }

    QUuid heldID;
    QPromise<std::optional<KeptDraft>> answer;
};

/// A model on three scratch folders; it remembers every confirmation.
struct ModelTest : testing::Test
{
    ModelTest() { restart(); }

    /// A new process on the same folders and settings.
    void restart()
    {
        model.reset();
        service = std::make_shared<RealService>();
        drafts = std::make_shared<HeldDrafts>(std::make_shared<PosixFileSystem>(), scratch.path("workspace"));
        model = std::make_unique<AppModel>(service, scratch.path("workspace"), scratch.path("claude"),
                                           scratch.path("codex"), settings(), drafts);
        QObject::connect(model.get(), &AppModel::confirmed, model.get(),
                         [this, sender = model.get()] { confirmations.append(sender->transientMessage()); });
    }

    std::shared_ptr<QSettings> settings() const
    {
        return std::make_shared<QSettings>(QString::fromStdString(scratch.path("settings.ini")),
                                           QSettings::IniFormat);
    }

    void settle() const
    {
        while (model->isBusy())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }

    /// While it lives, operations begin but don't end.
    WorkspaceHold hold() const { return WorkspaceHold(scratch.path("workspace")); }

    void start() const { QCoro::waitFor(model->start()); }

    QUuid create(const QString &slug) const
    {
        EXPECT_TRUE(QCoro::waitFor(model->createSkill(requestFor(slug))));
        return model->selectedSkillID();
    }

    /// How often the field that `changed` belongs to notifies while `action` and what it begins run.
    template <typename Action>
    int notifications(void (AppModel::*changed)(), const Action &action) const
    {
        int count = 0;
        const auto connection = QObject::connect(model.get(), changed, model.get(), [&count] { ++count; });
        action();
        settle();
        QObject::disconnect(connection);
        return count;
    }

    Scratch scratch;
    std::shared_ptr<RealService> service;
    std::shared_ptr<HeldDrafts> drafts;
    QStringList confirmations;
    std::unique_ptr<AppModel> model;
};

TEST(AppEnvironment, TakesAbsolutePathsAndExactlyOneTestMode)
{
    struct Case
    {
        std::map<std::string, std::string> variables;
        const char *workspace;
        bool hasPrivateSettings;
    };
    for (const Case &row : {
             Case{{}, "/home/u/VORNEL", false},
             Case{{{"VORNEL_WORKSPACE_PATH", "relative/dir"}}, "/home/u/VORNEL", false},
             Case{{{"VORNEL_WORKSPACE_PATH", ""}}, "/home/u/VORNEL", false},
             Case{{{"VORNEL_WORKSPACE_PATH", "/tmp/w/../x"}, {"VORNEL_TEST_MODE", "1"}}, "/tmp/x", true},
             Case{{{"VORNEL_CLAUDE_SKILLS_PATH", "c"}, {"VORNEL_CODEX_SKILLS_PATH", ""}},
                  "/home/u/VORNEL",
                  false},
             Case{{{"VORNEL_TEST_MODE", "true"}}, "/home/u/VORNEL", false},
         }) {
        const Environment environment = [&row](const char *name) {
            const auto found = row.variables.find(name);
            return found == row.variables.end() ? nullptr : found->second.c_str();
        };
        const AppEnvironment live =
            AppEnvironment::live(DefaultWorkspaceLocator("/home/u"), environment, "/home/u");
        EXPECT_EQ(live.workspaceURL, row.workspace);
        EXPECT_EQ(live.claudeRoot, "/home/u/.claude/skills");
        EXPECT_EQ(live.codexRoot, "/home/u/.codex/skills");
        const QString process = u"ui-test."_s + QString::number(QCoreApplication::applicationPid());
        EXPECT_EQ(live.defaults->fileName().contains(process), row.hasPrivateSettings);
    }
}

TEST_F(ModelTest, FirstStartLeadsThroughTheImportIntoTheLibrary)
{
    scratch.write("claude/audit/SKILL.md", "un");
    scratch.write("codex/audit/SKILL.md", "deux");
    start();
    EXPECT_FALSE(model->canCommitImport());
    model->beginImportScan();
    settle();
    EXPECT_FALSE(model->canCommitImport());
    {
        const WorkspaceHold held = hold();
        model->resolveCollision(model->importPlan()->collisions.first().id, CollisionChoice::codex);
        EXPECT_FALSE(model->canCommitImport()) << "an operation runs";
    }
    settle();
    EXPECT_TRUE(model->canCommitImport());

    bool wasRemembered = false;
    QObject::connect(model.get(), &AppModel::phaseChanged, model.get(),
                     [&] { wasRemembered = settings()->value(onboardingKey).toBool(); });
    QList<qreal> progress;
    QObject::connect(model.get(), &AppModel::commitProgressChanged, model.get(),
                     [&] { progress.append(model->commitProgress()); });
    model->setSelectedDestination(std::nullopt);
    model->commitImport();
    settle();
    EXPECT_EQ(model->phase(), Phase::ready());
    EXPECT_TRUE(wasRemembered) << "a crash right after must open in the library";
    EXPECT_EQ(model->selectedDestination(), Destination::library);
    EXPECT_TRUE(std::ranges::is_sorted(progress));
    EXPECT_EQ(progress.last(), 1);
}

TEST_F(ModelTest, OnboardingStopsAtBothEnds)
{
    const auto advance = [this] { model->advanceOnboarding(); };
    const auto retreat = [this] { model->retreatOnboarding(); };
    const auto changed = &AppModel::onboardingStepChanged;
    EXPECT_EQ(notifications(changed, retreat), 0);
    for (int step = 1; step <= 4; ++step)
        EXPECT_EQ(notifications(changed, advance), 1);
    EXPECT_EQ(notifications(changed, advance), 0);
    EXPECT_EQ(model->onboardingStep(), OnboardingStep::importSkills);
}

TEST_F(ModelTest, NotifiesOnlyWhenAValueReallyChanges)
{
    start();
    const QUuid id = create(u"audit"_s);
    model->closeSkill();
    const std::vector<std::pair<void (AppModel::*)(), std::function<void()>>> changes{
        {&AppModel::searchTextChanged, [this] { model->setSearchText(u"audit"_s); }},
        {&AppModel::selectedCategoryChanged, [this] { model->setSelectedCategory(u"other"_s); }},
        {&AppModel::selectedMaturityChanged, [this] { model->setSelectedMaturity(Maturity::ready); }},
        {&AppModel::selectedDestinationChanged,
         [this] { model->setSelectedDestination(Destination::trash); }},
        {&AppModel::selectedSkillIDChanged, [this, id] { model->selectSkill(id); }},
        {&AppModel::selectedSkillChanged, [this] { model->closeSkill(); }},
    };
    for (const auto &[changed, change] : changes) {
        EXPECT_EQ(notifications(changed, change), 1);
        EXPECT_EQ(notifications(changed, change), 0);
    }
    const auto reload = [this] { model->reload(); };
    EXPECT_EQ(notifications(&AppModel::overviewChanged, reload), 0);
    std::filesystem::remove_all(scratch.path("codex/audit"));
    EXPECT_EQ(notifications(&AppModel::overviewChanged, reload), 1);
}

TEST_F(ModelTest, AttentionIsNeededWhateverTheFilters)
{
    start();
    create(u"audit"_s);
    std::filesystem::remove_all(scratch.path("codex/audit"));
    model->reload();
    settle();
    model->setSearchText(u" NOTES\n"_s);
    model->setSelectedCategory(u"design"_s);
    EXPECT_TRUE(model->filteredSkills().isEmpty());
    EXPECT_EQ(model->needsAttention().size(), 1);
}

TEST_F(ModelTest, ActionsKeepWhatIsOpenUpToDate)
{
    start();
    const QUuid audit = create(u"audit"_s);
    EXPECT_TRUE(QCoro::waitFor(model->createCategory(u"Recherche"_s, u"21D6D1"_s)));
    const QString category = model->overview()->categories.last().id;
    model->assignSkills({audit}, category);
    settle();
    EXPECT_EQ(model->selectedSkill()->manifest.category, category) << "the open skill is loaded again";
    model->setSelectedCategory(category);
    EXPECT_TRUE(QCoro::waitFor(model->deleteCategory(category)));
    EXPECT_EQ(model->selectedCategory(), QString()) << "the filter is gone with its category";
    EXPECT_EQ(model->selectedSkill()->manifest.category, SkillCategory::otherID);

    const QUuid notes = create(u"notes"_s);
    const QUuid revue = create(u"revue"_s);
    model->moveSelectedSkillToTrash();
    settle();
    EXPECT_TRUE(model->selectedSkillID().isNull());
    EXPECT_FALSE(model->selectedSkill());
    model->restore(revue);
    settle();
    EXPECT_TRUE(model->selectedSkillID().isNull()) << "restoring selects nothing";
    model->selectSkill(audit);
    settle();
    model->moveSkillsToTrash({notes});
    settle();
    EXPECT_TRUE(model->selectedSkill()) << "another skill was thrown away";
    model->moveSkillsToTrash({audit, revue});
    settle();
    EXPECT_FALSE(model->selectedSkill());
    EXPECT_EQ(confirmations.last(), u"2 DÉPLACÉES"_s);
    EXPECT_EQ(model->errorMessage(), QString());
}

TEST_F(ModelTest, DeletingAnotherCategoryKeepsTheFilter)
{
    start();
    model->setSelectedCategory(u"design"_s);
    EXPECT_TRUE(QCoro::waitFor(model->deleteCategory(u"quality"_s)));
    EXPECT_EQ(model->selectedCategory(), u"design"_s);
}

TEST_F(ModelTest, WithoutASubjectNothingHappens)
{
    start();
    const auto act = [this] {
        EXPECT_FALSE(QCoro::waitFor(model->saveSelectedSkill(u"texte"_s)));
        model->synchronizeSelectedSkill();
        model->moveSelectedSkillToTrash();
        model->commitImport();
    };
    EXPECT_EQ(notifications(&AppModel::isWorkingChanged, act), 0);
    EXPECT_EQ(model->errorMessage(), QString());
}

TEST_F(ModelTest, FailureShowsItsTextUntilTheNextAction)
{
    start();
    const QUuid id = create(u"audit"_s);
    confirmations.clear();
    EXPECT_FALSE(QCoro::waitFor(model->createSkill(requestFor(u"audit"_s))));
    EXPECT_EQ(model->errorMessage(), VORNELWorkspaceError::duplicateSlug(u"audit"_s).errorDescription());
    EXPECT_FALSE(model->isWorking());
    EXPECT_EQ(model->selectedSkillID(), id) << "the selection stays";

    {
        const WorkspaceHold held = hold();
        model->reload();
        EXPECT_EQ(model->errorMessage(), QString());
        EXPECT_TRUE(model->isWorking());
    }
    settle();
    model->restore(id);
    settle();
    EXPECT_EQ(model->errorMessage(), VORNELWorkspaceError::skillNotFound(id).errorDescription());
    model->clearError();
    EXPECT_EQ(model->errorMessage(), QString());
    EXPECT_TRUE(confirmations.isEmpty());
}

TEST_F(ModelTest, ResultsOfAnEarlierCallStayWhenALaterOneFails)
{
    start();
    const QUuid id = create(u"audit"_s);
    service->failsToReload = true;
    EXPECT_FALSE(QCoro::waitFor(model->saveSelectedSkill(u"gardé"_s)));
    EXPECT_EQ(model->selectedSkill()->skillMD, u"gardé"_s);
    EXPECT_EQ(model->errorMessage(),
              VORNELWorkspaceError::integrityFailure(u"illisible"_s).errorDescription());

    service->failsToLoad = true;
    model->assignSkills({id}, u"design"_s);
    settle();
    EXPECT_EQ(model->overview()->skills.first().category, u"design"_s);
    EXPECT_FALSE(model->errorMessage().isEmpty());

    model->selectSkill(id);
    settle();
    EXPECT_FALSE(model->selectedSkill());
    EXPECT_FALSE(model->isDetailLoading());
    EXPECT_FALSE(model->errorMessage().isEmpty());
}

TEST_F(ModelTest, OverlappingActionsEachWriteTheirResults)
{
    start();
    const QUuid audit = create(u"audit"_s);
    const QUuid notes = create(u"notes"_s);
    {
        const WorkspaceHold held = hold();
        model->selectSkill(audit);
        model->selectSkill(notes);
        model->moveSkillsToTrash({audit});
        EXPECT_TRUE(model->isWorking());
        EXPECT_TRUE(model->isDetailLoading());
    }
    settle();
    EXPECT_EQ(model->selectedSkill()->manifest.id, notes);
    EXPECT_EQ(model->overview()->skills.size(), 1);
    EXPECT_FALSE(model->isWorking());
    EXPECT_FALSE(model->isDetailLoading());
}

TEST_F(ModelTest, ALateLoadLeavesTheSkillThatWasOpenedAfterIt)
{
    start();
    const QUuid audit = create(u"audit"_s);
    const QUuid notes = create(u"notes"_s);
    drafts->heldID = audit;
    drafts->answer.start();
    model->selectSkill(audit);
    model->selectSkill(notes);
    ASSERT_TRUE(QTest::qWaitFor([this] { return !model->isDetailLoading(); }));
    drafts->answer.addResult(std::optional(KeptDraft()));
    drafts->answer.finish();
    settle();
    EXPECT_EQ(model->selectedSkill()->manifest.id, notes);
    EXPECT_FALSE(model->selection().foundDraft(audit).draft);
}

TEST_F(ModelTest, EndsOnlyWhenItsOperationsHave)
{
    start();
    create(u"audit"_s);
    auto held = std::make_unique<WorkspaceHold>(scratch.path("workspace"));
    auto task = model->saveSelectedSkill(u"dernier mot"_s);
    QTimer::singleShot(50, [&held] { held.reset(); });
    model.reset();
    EXPECT_FALSE(held) << "it waited";
    EXPECT_TRUE(task.isReady());
    EXPECT_EQ(bytesOf(scratch.path("workspace/skills/audit/SKILL.md")), "dernier mot");
    EXPECT_EQ(bytesOf(scratch.path("codex/audit/SKILL.md")), "dernier mot");
}

} // namespace
} // namespace vornel

int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}

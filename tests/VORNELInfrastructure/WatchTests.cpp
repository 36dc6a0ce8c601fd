/// What the watch tells of the workspace and the targets, and of what it is silent.

#include "Scratch.h"

#include <VORNELInfrastructure/Drafts/LocalDrafts.h>

#include <functional>
#include <future>

using namespace std::chrono_literals;
using namespace Qt::StringLiterals;

namespace vornel {
namespace {

constexpr GatheringTime shortTime{20ms, 60ms};

/// A library with "audit" and "notes", watched; `other` is another program on it.
struct WatchTest : testing::Test
{
    WatchTest()
    {
        other.create(u"audit"_s);
        other.create(u"notes"_s);
    }

    void watch(GatheringTime time = shortTime, int mostFolders = std::numeric_limits<int>::max())
    {
        watching = std::make_shared<WorkspaceWatch>(time, mostFolders);
        service = std::make_unique<LocalWorkspaceService>(std::make_shared<PosixFileSystem>(),
                                                          FailureScope::Skill, watching);
        service->bootstrap(other.path("workspace"), other.path(claude), other.path(codex)).waitForFinished();
    }

    /// Whether anything is told within the time, and forgotten by an overview.
    bool tells(std::chrono::milliseconds time) const
    {
        const auto end = std::chrono::steady_clock::now() + time;
        while (!watching->isOverviewOutdated() && std::chrono::steady_clock::now() < end)
            std::this_thread::sleep_for(1ms);
        const bool isTold = watching->isOverviewOutdated();
        service->reload().waitForFinished();
        EXPECT_FALSE(watching->isOverviewOutdated());
        return isTold;
    }

    void tells(const char *what, const std::function<void()> &change) const
    {
        change();
        EXPECT_TRUE(tells(5s)) << what;
    }

    void isSilent(const char *what, const std::function<void()> &change) const
    {
        change();
        EXPECT_FALSE(tells(150ms)) << what;
    }

    void write(const std::string &below) const { other.write(below, "texte"); }
    void move(const std::string &from, const std::string &to) const
    {
        fs::rename(other.path(from), other.path(to));
    }

    TestWorkspace other;
    std::string claude = "claude";
    std::string codex = "codex";
    std::shared_ptr<WorkspaceWatch> watching;
    std::unique_ptr<LocalWorkspaceService> service;
};

TEST_F(WatchTest, TellsWhatAnOverviewMayShow)
{
    watch();
    EXPECT_TRUE(watching->isComplete());
    isSilent("the beginning", [] {});
    tells("a text", [&] { write("claude/audit/SKILL.md"); });
    tells("a part of a text", [&] { fs::resize_file(other.path("claude/audit/SKILL.md"), 3); });
    tells("a permission", [&] { fs::permissions(other.path("codex/audit/SKILL.md"), fs::perms::none); });
    tells("a new skill", [&] { fs::create_directory(other.path("codex/nouvelle")); });
    tells("a text in a new skill", [&] { write("codex/nouvelle/SKILL.md"); });
    tells("a new folder", [&] { write("codex/nouvelle/a/b/texte.md"); });
    tells("a text in a new folder", [&] { fs::remove(other.path("codex/nouvelle/a/b/texte.md")); });
    tells("a skill that goes", [&] { fs::remove_all(other.path("codex/nouvelle")); });
    tells("a category", [&] { other.service->createCategory(u"Neuve"_s, u"21D6D1"_s).waitForFinished(); });
    const auto trash = [&] { return other.service->reload().result().trashedSkills; };
    const QUuid id = other.service->reload().result().skills.first().id;
    tells("a way to the trash", [&] { other.service->moveToTrash(id).waitForFinished(); });
    tells("the end of a skill in the trash", [&] { other.service->emptyTrash().waitForFinished(); });
    EXPECT_TRUE(trash().isEmpty());
}

TEST_F(WatchTest, IsSilentAboutWhatNoOverviewShows)
{
    watch();
    isSilent("a reader", [&] { other.service->reload().waitForFinished(); });
    isSilent("what is hidden", [&] { write("claude/audit/.SKILL.md.swp"); });
    isSilent("what nobody shows", [&] { write("workspace/notes.md"); });
    isSilent("skills that are ignored", [&] {
        other.service->ignoreNewSkills({{TargetKind::claude, u"neuve"_s}}).waitForFinished();
    });
    isSilent("an unsaved text", [&] {
        LocalDrafts drafts(std::make_shared<PosixFileSystem>(), other.path("workspace"));
        drafts.keepDraft(QUuid::createUuid(), {u"x"_s, u"y"_s, {}}).waitForFinished();
    });
    write("elsewhere/dossier/texte.md");
    tells("a link",
          [&] { fs::create_symlink(other.path("elsewhere/dossier"), other.path("claude/audit/lien")); });
    isSilent("what is behind a link", [&] { write("elsewhere/dossier/texte.md"); });
    tells("a skill that is moved away", [&] { move("codex/audit", "elsewhere/audit"); });
    isSilent("what was moved away", [&] { write("elsewhere/audit/SKILL.md"); });
}

TEST_F(WatchTest, FollowsFoldersThatChangePlacesAndComeAgain)
{
    watch();
    tells("an exchange", [&] {
        move("claude/audit", "claude/autre");
        move("claude/notes", "claude/audit");
        move("claude/autre", "claude/notes");
    });
    tells("one of them", [&] { write("claude/audit/SKILL.md"); });
    tells("the other", [&] { write("claude/notes/SKILL.md"); });
    tells("a save", [&] {
        const SkillDetail skill = other.service->loadSkill(other.bootstrap().skills.first().id).result();
        other.service->saveSkill(skill.manifest.id, skill.manifest.revision, u"neuf"_s).waitForFinished();
    });
    tells("a text after a save", [&] { write("workspace/skills/audit/SKILL.md"); });
    tells("a target that goes", [&] { fs::remove_all(other.path("claude")); });
    isSilent("what is beside it", [&] { write("autre/SKILL.md"); });
    tells("a target that comes", [&] { fs::create_directory(other.path("claude")); });
    tells("a skill that comes", [&] { fs::create_directory(other.path("claude/audit")); });
    tells("its text", [&] { write("claude/audit/SKILL.md"); });
    tells("a target that is moved away", [&] { move("codex", "ailleurs"); });
    isSilent("what was moved away", [&] { write("ailleurs/audit/SKILL.md"); });
    tells("a target that comes again", [&] { move("ailleurs", "codex"); });
    tells("a text in it", [&] { write("codex/audit/SKILL.md"); });
}

TEST_F(WatchTest, FollowsATargetWhoseParentsAreMissing)
{
    claude = "a/b/claude";
    codex = "a/codex";
    watch();
    tells("the first of them", [&] { fs::create_directory(other.path("a")); });
    tells("both", [&] { write("a/b/claude/neuve/SKILL.md"); });
    tells("a text", [&] { write("a/b/claude/neuve/SKILL.md"); });
    tells("the other target", [&] { fs::create_directory(other.path("a/codex")); });
}

TEST_F(WatchTest, SaysWhereItDoesNotSeeEverything)
{
    watch(shortTime, 4);
    EXPECT_FALSE(watching->isComplete());
    for (int number = 0; number < 20; ++number)
        fs::create_directory(other.path("claude/notes/" + std::to_string(number)));
    watch();
    EXPECT_FALSE(watching->isComplete());
    tells("what is watched", [&] { write("claude/notes/SKILL.md"); });
}

TEST_F(WatchTest, NoticesWhatIsWrittenWhileManyEventsAreLost)
{
    watch({});
    const auto writeMany = [&] {
        for (int number = 0; number < 40'000; ++number) // more than the kernel keeps
            fs::permissions(other.path(number % 2 == 0 ? "claude/audit" : "codex/audit"),
                            fs::perms::owner_all);
        fs::create_directory(other.path("claude/neuve"));
    };
    tells("many", writeMany);
    tells("what comes later", [&] { write("claude/neuve/SKILL.md"); });
}

} // namespace
} // namespace vornel

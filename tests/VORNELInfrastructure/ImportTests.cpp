#include "FaultyFileSystem.h"
#include "Scratch.h"

#include <VORNELCore/Records/SerializedForms.h>

#include <fcntl.h>
#include <sys/stat.h>

#include <array>

using namespace Qt::StringLiterals;

namespace vornel {
namespace {

class Import : public testing::Test, protected TestWorkspace
{
protected:
    ImportPlan scan() { return service->scanImports().result(); }

    WorkspaceOverview commit(const ImportPlan &plan) { return service->commitImport(plan.id).result(); }

    std::optional<Error> failure(const ImportPlan &plan)
    {
        return errorOf([&] { commit(plan); });
    }

    static QString slugs(const ImportPlan &plan)
    {
        QStringList all;
        for (const ImportCandidate &candidate : plan.candidates)
            all.append(candidate.slug + u':' + rawValue(candidate.source) + u':' +
                       rawValue(candidate.classification));
        return all.join(u' ');
    }
};

TEST_F(Import, TellsOfWhatAssistantsMadeSinceTheLastOne)
{
    create(u"known"_s);
    const QUuid thrown = create(u"thrown"_s).manifest.id;
    service->moveToTrash(thrown).result();
    for (const char *folder :
         {"claude/made", "claude/thrown", "codex/made", "codex/.hidden", "codex/Bad Name"})
        write(std::string(folder) + "/SKILL.md", "x");
    write("claude/no-text/notes.md", "x");
    std::filesystem::create_directory_symlink(path("claude/made"), path("codex/linked"));

    const NewSkill claudeMade{TargetKind::claude, u"made"_s, false};
    const NewSkill claudeThrown{TargetKind::claude, u"thrown"_s, true};
    const NewSkill codexMade{TargetKind::codex, u"made"_s, false};
    EXPECT_EQ(service->newSkills().result(), (QList{claudeMade, claudeThrown, codexMade}));
    EXPECT_EQ(service->ignoreNewSkills({claudeMade}).result(), (QList{claudeThrown, codexMade}));
    restart();
    EXPECT_EQ(service->newSkills().result(), (QList{claudeThrown, codexMade}));
    EXPECT_TRUE(slugs(scan()).contains(u"made:claude"_s)) << "an import finds them still";

    service->ignoreNewSkills({claudeThrown, codexMade}).result();
    std::filesystem::remove_all(path("codex/made"));
    service->ignoreNewSkills({}).result();
    write("codex/made/SKILL.md", "x");
    EXPECT_EQ(service->newSkills().result(), QList{codexMade}) << "what went and came again is new";

    commit(scan());
    EXPECT_TRUE(service->newSkills().result().isEmpty());
    EXPECT_EQ(errorOf([&] { service->restore(thrown).result(); }), Error::duplicateSlug(u"thrown"_s))
        << "what is imported under a trashed skill's name is a skill of its own";
    service->deletePermanently(thrown).result();
    for (const SkillSummary &skill : service->reload().result().skills)
        service->moveToTrash(skill.id).result();
    for (const char *folder : {"claude/made", "claude/thrown", "codex/made"})
        write(std::string(folder) + "/SKILL.md", "x");
    const NewSkill madeAgain{TargetKind::codex, u"made"_s, true};
    EXPECT_EQ(service->newSkills().result().last(), madeAgain)
        << "though it was ignored before it was imported";
    EXPECT_EQ(service->newSkills().result().size(), 3);
    service->ignoreNewSkills({madeAgain}).result();

    write("workspace/.vornel/ignored.json", "spoiled");
    EXPECT_EQ(service->newSkills().result().size(), 3) << "better told again than never";
    std::filesystem::remove_all(path("claude"));
    std::filesystem::create_directory_symlink(path("codex"), path("claude"));
    EXPECT_EQ(service->newSkills().result(), QList{madeAgain}) << "a target that is a link isn't followed";
}

TEST_F(Import, ClassifiesWhatBothFoldersHold)
{
    EXPECT_TRUE(scan().isReadyToCommit());
    EXPECT_EQ(commit(scan()).skills.size(), 0);

    write("claude/both/SKILL.md", "same");
    write("codex/both/SKILL.md", "same");
    write("codex/both/.hidden", "not compared");
    write("claude/left/SKILL.md", "x");
    write("codex/right/SKILL.md", "x");
    for (const char *slug : {"zz-collision", "aa-collision"}) {
        write("claude/" + std::string(slug) + "/SKILL.md", "one");
        write("codex/" + std::string(slug) + "/SKILL.md", "other");
    }
    create(u"known"_s);
    write("claude/known/SKILL.md", "differs, but is in the library");

    const ImportPlan plan = scan();
    EXPECT_EQ(slugs(plan), u"both:claude:identical left:claude:singleSource "_s
                           u"right:codex:singleSource"_s);
    ASSERT_EQ(plan.collisions.size(), 2);
    EXPECT_EQ(plan.collisions[0].slug, u"aa-collision"_s);
    EXPECT_EQ(plan.collisions[0].codex.sourceURL, path("codex/aa-collision"));
    EXPECT_EQ(plan.revision, 1);
    EXPECT_TRUE(plan.blocked.isEmpty());
}

TEST_F(Import, ComparesBothSidesOfACollision)
{
    const auto last = QDateTime::fromSecsSinceEpoch(1'700'000'000, Qt::UTC);
    const auto date = [&](const char *file, int ageInSeconds) {
        const timespec time{last.toSecsSinceEpoch() - ageInSeconds, 0};
        const std::array times{time, time};
        ASSERT_EQ(::utimensat(AT_FDCWD, path(file).c_str(), times.data(), 0), 0);
    };
    write("claude/clash/SKILL.md", "one");
    write("claude/clash/ref/only.md", "left");
    write("claude/clash/vornel.json", "does not count");
    write("codex/clash/SKILL.md", "other");
    write("codex/clash/empty/.hidden", "");
    date("claude/clash/SKILL.md", 9);
    date("claude/clash/ref/only.md", 5);
    date("codex/clash/SKILL.md", 7);

    const TargetComparison clash = service->compareTargets(u"clash"_s).result();
    EXPECT_EQ(clash, (TargetComparison{.slug = u"clash"_s,
                                       .claude = {TargetKind::claude, 2, 7, last.addSecs(-5), true},
                                       .codex = {TargetKind::codex, 1, 5, last.addSecs(-7), false},
                                       .differences = {{u"SKILL.md"_s, FileChange::changed},
                                                       {u"empty/"_s, FileChange::added},
                                                       {u"ref/only.md"_s, FileChange::removed}}}));
    date("codex/clash/SKILL.md", 5);
    EXPECT_FALSE(service->compareTargets(u"clash"_s).result().claude.isNewer);

    const auto read = [this](TargetKind target, const QString &file) {
        return service->readTargetFile(u"clash"_s, target, file).result();
    };
    EXPECT_EQ(read(TargetKind::claude, u"ref/only.md"_s), "left");
    EXPECT_EQ(read(TargetKind::codex, u"ref/only.md"_s), std::nullopt);
    EXPECT_EQ(errorOf([&] { read(TargetKind::codex, u"../../claude/clash/SKILL.md"_s); }),
              Error::invalidPath(PathViolation::parentTraversal));
    EXPECT_EQ(errorOf([this] { service->compareTargets(u"../clash"_s).result(); }),
              Error::invalidPath(PathViolation::invalidSlug));
    fs::create_symlink("/etc/passwd", path("codex/clash/link"));
    EXPECT_EQ(errorOf([this] { service->compareTargets(u"clash"_s).result(); }),
              Error::symlinkUnsupported(u"link"_s));
    EXPECT_EQ(errorOf([&] { read(TargetKind::codex, u"link"_s); }),
              Error::symlinkUnsupported(pathText(path("codex/clash/link"))));
    fs::remove_all(path("codex/clash"));
    EXPECT_THROW(service->compareTargets(u"clash"_s).result(), fs::filesystem_error);
    fs::remove_all(path("codex"));
    fs::create_directory_symlink(path("claude"), path("codex"));
    EXPECT_EQ(errorOf([this] { service->compareTargets(u"clash"_s).result(); }),
              Error::symlinkUnsupported(pathText(path("codex"))));
    EXPECT_THROW(read(TargetKind::codex, u"SKILL.md"_s), Error);
}

TEST_F(Import, SaysWhyAFolderIsBlocked)
{
    write("claude/.system/SKILL.md", "hidden");
    write("claude/file", "plain file");
    write("codex/Bad_Name/SKILL.md", "x");
    write("claude/Bad_Name/SKILL.md", "x");
    write("claude/caf\xE9/SKILL.md", "x");
    fs::create_directory_symlink(path("codex/Bad_Name"), path("codex/linked"));
    fs::create_directories(path("claude/empty"));
    fs::create_directories(path("claude/folder/SKILL.md"));
    write("claude/inner-link/SKILL.md", "x");
    fs::create_symlink("SKILL.md", path("claude/inner-link/link"));
    write("claude/odd-name/SKILL.md", "x");
    write("claude/odd-name/caf\xE9", "x");
    write("claude/pipe/SKILL.md", "x");
    ASSERT_EQ(::mkfifo(path("claude/pipe/pipe").c_str(), 0600), 0);
    write("claude/latin/SKILL.md", "caf\xE9");
    write("claude/long/SKILL.md", "description: " + std::string(1'000'001, '"'));
    write("claude/reserved/SKILL.md", "x");
    write("claude/reserved/.vornel/x", "x");

    QStringList blocked;
    for (const BlockedImport &entry : scan().blocked)
        blocked.append(entry.name + u':' + rawValue(entry.source) + u':' + entry.reason);
    EXPECT_EQ(blocked.join(u' '),
              u"Bad_Name:claude:invalidPath Bad_Name:codex:invalidPath "_s
              u"caf\uFFFD:claude:invalidPath empty:claude:missingSkillFile "_s
              u"folder:claude:missingSkillFile inner-link:claude:symlinkUnsupported "_s
              u"latin:claude:unreadable linked:codex:symlinkUnsupported "_s
              u"long:claude:unsafeContent odd-name:claude:unsafeContent pipe:claude:unsafeContent "_s
              u"reserved:claude:unreadable"_s);
    EXPECT_TRUE(scan().candidates.isEmpty());
    fs::remove_all(path("claude"));
    fs::create_directory_symlink(path("codex"), path("claude"));
    EXPECT_EQ(errorOf([&] { scan(); }), Error::symlinkUnsupported(pathText(path("claude"))));
}

TEST_F(Import, TakesTheChosenSideAndInstallsItEverywhere)
{
    write("claude/clash/SKILL.md", "name: Left\ndescription: From the left\n");
    write("codex/clash/SKILL.md", "name: Right\n");
    write("codex/clash/reference/file", "bytes");
    ImportPlan plan = scan();
    const QUuid collision = plan.collisions.first().id;
    EXPECT_EQ(failure(plan), Error::unresolvedCollisions({collision}));
    service->resolveCollision(collision, CollisionChoice::claude).waitForFinished();
    plan = service->resolveCollision(collision, CollisionChoice::codex).result();
    EXPECT_EQ(plan.revision, 3);

    const QFuture<WorkspaceOverview> future = service->commitImport(plan.id);
    const WorkspaceOverview overview = future.result();
    EXPECT_EQ(future.progressMaximum(), 1);
    EXPECT_EQ(future.progressValue(), 1);
    ASSERT_EQ(overview.skills.size(), 1);
    const SkillSummary skill = overview.skills.first();
    EXPECT_EQ(skill.displayName, u"Right"_s);
    EXPECT_EQ(skill.category, SkillCategory::otherID);
    EXPECT_EQ(skill.maturity, Maturity::active);
    EXPECT_EQ(skill.syncState, SyncState::inSync);
    EXPECT_EQ(bytesOf(path("claude/clash/reference/file")), "bytes");
    EXPECT_EQ(names("workspace/.vornel/history").size(), 1U);
    EXPECT_EQ(failure(plan), Error::importPlanNotFound());
}

TEST_F(Import, ActsOnThePendingPlanOnly)
{
    const QUuid id = QUuid::createUuid();
    const auto resolve = [&] { service->resolveCollision(id, CollisionChoice::claude).result(); };
    EXPECT_EQ(errorOf(resolve), Error::importPlanNotFound());
    const ImportPlan older = scan();
    EXPECT_EQ(errorOf(resolve), Error::collisionNotFound(id));
    scan();
    EXPECT_EQ(failure(older), Error::importPlanNotFound());
}

TEST_F(Import, RefusesASourceThatChangedAndCanBeRepeated)
{
    write("claude/first/SKILL.md", "x");
    write("claude/second/SKILL.md", "x");
    const ImportPlan plan = scan();
    write("claude/second/more", "x");
    EXPECT_EQ(failure(plan), integrity(u"Le contenu de second a changé depuis le scan."_s));
    EXPECT_TRUE(names("workspace/.vornel/staging").empty());
    EXPECT_EQ(stateOf(u"first"_s), SyncState::inSync);

    fs::remove(path("claude/second/more"));
    EXPECT_EQ(commit(plan).skills.size(), 2);
    EXPECT_EQ(names("workspace/.vornel/history").size(), 2U);
}

TEST_F(Import, AdoptsOnlyWhatIsTheSame)
{
    write("claude/demo/SKILL.md", "theirs");
    write("claude/other/SKILL.md", "x");
    const ImportPlan plan = scan();
    create(u"demo"_s, u"ours"_s);
    EXPECT_EQ(failure(plan), Error::duplicateSlug(u"demo"_s));
    EXPECT_EQ(bytesOf(path("workspace/skills/demo/SKILL.md")), "ours");
}

TEST_F(Import, GoesOnPastABrokenTargetAndNeverLocksTheUserOut)
{
    for (const char *slug : {"a", "b"})
        write("claude/" + std::string(slug) + "/SKILL.md", slug);
    const ImportPlan plan = scan();
    write("codex", "a file stands where the folder should");
    EXPECT_EQ(failure(plan), Error::partialSync({TargetKind::codex}));
    EXPECT_EQ(names("workspace/skills"), (std::vector<std::string>{"a", "b"}));
    write("claude/a/SKILL.md", "edited since");
    EXPECT_EQ(commit(plan).skills.first().syncState, SyncState::failed);
    EXPECT_EQ(bytesOf(path("claude/a/SKILL.md")), "edited since");
}

} // namespace
} // namespace vornel

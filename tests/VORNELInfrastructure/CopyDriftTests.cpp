#include "FaultyFileSystem.h"
#include "Scratch.h"
#include "StartingState.h"

#include <VORNELCore/Records/SerializedForms.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vornel {
namespace {

class DriftedCopy : public testing::Test, protected TestWorkspace
{
protected:
    DriftedCopy()
        : demo(create(u"demo"_s, u"canonical"_s).manifest.id), tolerant(manager, FailureScope::Skill)
    {
        tolerant.bootstrap(path("workspace"), path("claude"), path("codex")).waitForFinished();
    }

    SyncState state() { return tolerant.reload().result().skills.first().syncState; }

    const QUuid demo;
    LocalWorkspaceService tolerant;
};

TEST_F(DriftedCopy, TellsWhoHasChangedWhat)
{
    const auto edit = [this](const char *file) { write(file, "edited"); };
    const auto saveNewRevision = [this] {
        const qint64 revision = service->loadSkill(demo).result().manifest.revision;
        service->saveSkill(demo, revision, u"text after %1"_s.arg(revision)).waitForFinished();
    };
    const std::string history = "workspace/.vornel/history/" + uuidText(demo).toStdString();
    struct Case
    {
        const char *name;
        std::function<void()> change;
        Drift claude;
        Drift codex;
    };
    const std::vector<Case> cases{
        {"a copy", [&] { edit("codex/demo/SKILL.md"); }, Drift::none, Drift::edited},
        {"the library", [&] { edit("workspace/skills/demo/SKILL.md"); }, Drift::outdated, Drift::outdated},
        {"the library, with what was installed by hand before",
         [&] {
             edit("workspace/skills/demo/one");
             service->synchronize(demo).waitForFinished();
             edit("workspace/skills/demo/two");
         },
         Drift::outdated, Drift::outdated},
        {"both",
         [&] {
             edit("workspace/skills/demo/three");
             edit("codex/demo/four");
         },
         Drift::outdated, Drift::edited},
        {"a copy, to an older revision",
         [&] {
             const fs::path former = path("former");
             fs::copy(path("codex/demo"), former, fs::copy_options::recursive);
             saveNewRevision();
             fs::remove_all(path("codex/demo"));
             fs::rename(former, path("codex/demo"));
         },
         Drift::none, Drift::outdated},
        {"a copy, without the revision that was installed",
         [&] {
             edit("codex/demo/SKILL.md");
             const auto revision = service->loadSkill(demo).result().manifest.revision;
             for (const std::string &entry : names(history)) {
                 if (entry.starts_with(std::to_string(revision) + '-'))
                     fs::remove_all(path(history + '/' + entry));
             }
         },
         Drift::none, Drift::unknown},
        {"a copy, without a history",
         [&] {
             edit("codex/demo/SKILL.md");
             fs::remove_all(path(history));
         },
         Drift::none, Drift::unknown},
    };
    for (const Case &next : cases) {
        next.change();
        const QList<CopyInspection> seen = tolerant.inspectCopies(demo).result();
        EXPECT_EQ(seen.at(0).drift, next.claude) << next.name;
        EXPECT_EQ(seen.at(1).drift, next.codex) << next.name;
        EXPECT_EQ(state(), SyncState::drifted) << next.name;
        const QList<CopyInspection> wrong = tolerant.wrongCopies().result().value(demo);
        EXPECT_EQ(worstDrift(wrong), std::max(next.claude, next.codex)) << next.name;
        EXPECT_EQ(wrong.size(), next.claude == Drift::none ? 1 : 2) << next.name;
        for (const CopyInspection &copy : wrong) {
            const auto compared = seen.at(static_cast<int>(copy.target)).differences;
            EXPECT_EQ(copy.differences, copy.drift == Drift::edited ? compared : QList<FileDifference>())
                << next.name;
        }
        service->synchronize(demo).waitForFinished();
        saveNewRevision();
    }
    EXPECT_EQ(state(), SyncState::inSync);
    EXPECT_TRUE(tolerant.wrongCopies().result().isEmpty());
}

TEST(DriftedCopies, AreExplainedWithNoMoreLooksThanNeeded)
{
    const auto files = std::make_shared<FaultyFileSystem>();
    TestWorkspace workspace(files);
    const QUuid id = workspace.create(u"demo"_s, u"first"_s).manifest.id;
    for (const qint64 revision : {1, 2, 3})
        workspace.service->saveSkill(id, revision, u"next %1"_s.arg(revision)).waitForFinished();
    const auto tolerant = startService(workspace.path(), files, FailureScope::Skill);
    const auto looks = [&files](const auto &action) {
        files->failAt(0, FaultyFileSystem::Call::Look);
        action();
        return files->calls();
    };
    const auto readAll = [&] { tolerant->reload().waitForFinished(); };
    const auto askWhy = [&] { tolerant->wrongCopies().waitForFinished(); };
    const int inSync = looks(readAll);
    workspace.write("codex/demo/SKILL.md", "edited");
    EXPECT_EQ(looks(readAll), inSync) << "an overview takes no longer";
    const int wholeHistory = looks(askWhy);
    for (const char *copy : {"claude", "codex"})
        workspace.write(std::string(copy) + "/demo/SKILL.md", "next 2");
    readAll();
    const int half = looks(askWhy);
    EXPECT_LT(half, wholeHistory) << "and both copies are looked for at once";
    fs::remove_all(workspace.path("claude/demo"));
    readAll();
    EXPECT_LT(looks(askWhy), half) << "a skill that lacks a copy says so, whatever the other one is";
}

} // namespace
} // namespace vornel

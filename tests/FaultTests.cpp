#include "FaultyFileSystem.h"
#include "Scratch.h"

#include <VORNELCore/SerializedForms.h>

#include <iostream>

using namespace Qt::StringLiterals;

namespace vornel {
namespace {

namespace fs = std::filesystem;

const QString oldText = u"old"_s;
const QString newText = u"new"_s;

/// Runs one operation again and again, each time on the same workspace and with the next call failing, until
/// it succeeds. After every failure a new start must find everything whole.
class EveryFault : public testing::Test
{
protected:
    using Operation = std::function<void(TestWorkspace &)>;

    EveryFault() : m_files(std::make_shared<FaultyFileSystem>()), m_workspace(m_files)
    {
        m_id = m_workspace.create(u"demo"_s, oldText).manifest.id;
        m_workspace.write("workspace/skills/demo/reference/file", "extra");
        m_workspace.service->synchronize(m_id).waitForFinished();
        m_workspace.create(u"bystander"_s);
        m_workspace.write("codex/demo/SKILL.md", "edited");
        fs::create_directories(m_workspace.path("pristine"));
        fs::copy(m_workspace.path("workspace"), m_workspace.path("pristine/workspace"), recursive);
        for (const char *target : {"claude", "codex"})
            fs::copy(m_workspace.path(target), m_workspace.path("pristine") / target, recursive);
    }

    void runWithEveryFault(const char *name, const Operation &operation)
    {
        for (const bool afterwards : {false, true})
            runWithEveryFault(name, afterwards, operation);
    }

    QUuid m_id;

private:
    static constexpr auto recursive = fs::copy_options::recursive;

    void runWithEveryFault(const char *name, bool afterwards, const Operation &operation)
    {
        m_files->failAfterwards(afterwards);
        int failures = 0;
        for (int call = 1;; ++call) {
            SCOPED_TRACE(testing::Message() << name << ", call " << call);
            reset();
            m_files->failAt(call);
            try {
                operation(m_workspace);
            } catch (const std::exception &) {
                ++failures;
            }
            const bool wasReached = m_files->calls() >= call;
            m_files->failAt(0);
            checkWhole();
            if (HasFatalFailure() || !wasReached)
                break;
        }
        std::cout << name << (afterwards ? ", done and" : ",") << " reported as failed: " << failures
                  << " of the faults made it fail\n";
        EXPECT_GT(failures, 20);
    }

    void reset()
    {
        for (const char *root : {"workspace", "claude", "codex"}) {
            fs::remove_all(m_workspace.path(root));
            fs::copy(m_workspace.path("pristine") / root, m_workspace.path(root), recursive);
        }
        m_workspace.restart();
    }

    void checkWhole()
    {
        ASSERT_NO_THROW(m_workspace.restart());
        const SkillDetail demo = m_workspace.service->loadSkill(m_id).result();
        EXPECT_EQ(demo.skillMD, demo.manifest.revision == 1 ? oldText : newText);
        EXPECT_EQ(bytesOf(m_workspace.path("workspace/skills/demo/reference/file")), "extra");
        EXPECT_EQ(m_workspace.stateOf(u"bystander"_s), SyncState::inSync);
        EXPECT_TRUE(m_workspace.names("workspace/.vornel/staging").empty());
        checkHistory();
        EXPECT_EQ(m_workspace.service->synchronize(m_id).result().syncState, SyncState::inSync);
    }

    /// Whatever the history holds must be whole: it is what the next change relies on.
    void checkHistory()
    {
        const fs::path history = m_workspace.path("workspace/.vornel/history") / uuidText(m_id).toStdString();
        for (const fs::directory_entry &revision : fs::directory_iterator(history)) {
            for (const char *file : {"SKILL.md", "vornel.json"})
                EXPECT_TRUE(fs::exists(revision.path() / file)) << revision.path();
        }
    }

    std::shared_ptr<FaultyFileSystem> m_files;
    TestWorkspace m_workspace;
};

TEST_F(EveryFault, OfASaveLeavesTheOldTextOrTheNew)
{
    runWithEveryFault("save", [this](TestWorkspace &workspace) {
        workspace.service->saveSkill(m_id, 1, newText).waitForFinished();
    });
}

TEST_F(EveryFault, OfAnInstallLeavesTheSkillWhole)
{
    runWithEveryFault("install", [this](TestWorkspace &workspace) {
        fs::remove_all(workspace.path("claude/demo"));
        workspace.service->synchronize(m_id).waitForFinished();
    });
}

} // namespace
} // namespace vornel

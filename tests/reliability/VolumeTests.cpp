/// Each root on a volume of its own that is full or becomes read-only: real ones, in memory.

#include "Promises.h"
#include "Sample.h"
#include "SteppedFileSystem.h"
#include "Volume.h"

#include <VORNELCore/Errors/ErrorMessage.h>

#include <algorithm>
#include <array>
#include <iostream>
#include <mutex>
#include <set>
#include <tuple>

using namespace Qt::StringLiterals;

namespace vornel {
namespace {

bool hasOwnMounts = false;

constexpr std::array places{"workspace", "claude", "codex"};

const QString isFull = u"Le volume est plein"_s;
const QString isReadOnly = u"Le volume est en lecture seule"_s;

/// Limits the free room of a volume, in pages or in files.
struct Shortage
{
    const char *name;
    void (Volume::*leave)(int count) const;
};

constexpr std::array shortages{Shortage{"full", &Volume::leavePages},
                               Shortage{"out of files", &Volume::leaveFiles}};

/// A scenario of which one root is a volume of its own.
class VolumeTest : public testing::Test
{
protected:
    VolumeTest(std::string place, const Scenario &scenario) : m_place(std::move(place)), m_rehearsal(scenario)
    {}

    void SetUp() override
    {
        if (!hasOwnMounts)
            GTEST_SKIP() << "this machine allows no mounts, not even in a namespace of one's own";
        reset();
    }

    void TearDown() override { m_service.reset(); }

    /// Puts back the starting state, on a volume that has plenty of room and holds another file too.
    void reset()
    {
        m_service.reset();
        m_volume.reset();
        m_rehearsal.reset([this] { m_volume = std::make_unique<Volume>(m_rehearsal.folder() / m_place); });
        m_rehearsal.write("now/" + m_place + "/.autre", "d’un autre programme");
    }

    void start() { m_service = m_rehearsal.start(m_files); }

    /// Starts the service, and runs the operation. Returns whether it succeeded; a failure must name its
    /// cause.
    bool endsWell(const QString &cause)
    {
        try {
            start();
            m_rehearsal.scenario().run(*m_service);
            return true;
        } catch (const std::exception &error) {
            expectClearError(error, cause);
            return false;
        }
    }

    /// Checks that the same process does the operation once the cause is gone, and that all promises hold
    /// then.
    void mend()
    {
        m_volume->mend();
        checkWhole(m_rehearsal);
        if (!m_service)
            start();
        repeat(m_rehearsal.scenario(), *m_service);
        checkPromises(m_rehearsal, Reported::Success);
        EXPECT_EQ(bytesOf(m_rehearsal.path("now/" + m_place + "/.autre")), "d’un autre programme");
    }

    /// Whether an unfinished change may leave this: what is in the staging folder, and ".tmp" files anywhere.
    std::set<fs::path> unfinishedBelow(const char *folder) const
    {
        std::set<fs::path> found;
        for (const fs::directory_entry &entry : fs::recursive_directory_iterator(m_rehearsal.path(folder))) {
            const fs::path path = entry.path().lexically_relative(m_rehearsal.path(folder));
            if (path.parent_path().filename() == "staging" || path.extension() == ".tmp")
                found.insert(path);
        }
        return found;
    }

private:
    /// Whether the error itself, or the reason of a failed copy, names the cause.
    void expectClearError(const std::exception &error, const QString &cause) const
    {
        const QString message = errorMessage(error);
        if (message.startsWith(cause + u"\u00A0: /"_s))
            return;
        const auto *workspace = dynamic_cast<const VORNELWorkspaceError *>(&error);
        ASSERT_TRUE(workspace != nullptr && workspace->as<WorkspaceErrorCase::PartialSync>() != nullptr)
            << message.toStdString();
        QStringList reasons;
        for (const SkillSummary &skill : m_service->reload().result().skills) {
            for (const CopyInspection &copy : m_service->inspectCopies(skill.id).result())
                reasons.append(copy.reason);
        }
        EXPECT_TRUE(std::ranges::any_of(reasons, [&](const QString &reason) {
            return reason.startsWith(cause);
        })) << reasons.join(u'|').toStdString();
    }

    std::string m_place;

protected:
    Rehearsal m_rehearsal;
    std::unique_ptr<Volume> m_volume;
    std::shared_ptr<SteppedFileSystem> m_files = std::make_shared<SteppedFileSystem>();
    std::unique_ptr<LocalWorkspaceService> m_service;
};

class Volumes : public VolumeTest, public testing::WithParamInterface<std::tuple<const char *, Scenario>>
{
protected:
    Volumes() : VolumeTest(std::get<0>(GetParam()), std::get<1>(GetParam())) {}

    /// Makes the volume read-only before the change of this number, or as soon as no file is being written
    /// after it. Returns how many changes the operation makes.
    int makeReadOnlyAt(int change)
    {
        reset();
        std::mutex turn; // of the operation's threads
        int changes = 0;
        bool isDone = change == 0;
        m_files->around = [&](const Step &step, const SteppedFileSystem::Make &make) {
            {
                const std::lock_guard lock(turn);
                changes += step.isLook() ? 0 : 1;
                if (!isDone && changes >= change)
                    isDone = m_volume->makeReadOnly();
            }
            make();
        };
        endsWell(isReadOnly);
        m_files->reset();
        mend();
        return changes;
    }
};

TEST_P(Volumes, HarmNothingWithoutRoom)
{
    int cases = 0;
    for (const Shortage &shortage : shortages) {
        bool isDone = false;
        for (int room = 0; !isDone; ++room, ++cases) {
            SCOPED_TRACE(testing::Message() << shortage.name << " but for " << room);
            reset();
            (*m_volume.*shortage.leave)(room);
            isDone = endsWell(isFull);
            EXPECT_TRUE(std::ranges::includes(unfinishedBelow("pristine"), unfinishedBelow("now")));
            mend();
            ASSERT_FALSE(HasFailure());
        }
    }
    const std::set<std::string> onlyRemove{"deletePermanently", "deleteSetAside", "emptyTrash", "prune",
                                           "startAfterCrashes"};
    const auto &[place, scenario] = GetParam();
    EXPECT_TRUE(cases > 2 || place != std::string_view("workspace") || onlyRemove.contains(scenario.name))
        << "there was room for everything";
    std::cout << "volume cases: " << cases << std::endl;
}

TEST_P(Volumes, HarmNothingThatBecomeReadOnly)
{
    Sample sample(m_rehearsal.scenario(), 8);
    for (const int change : sample.of(makeReadOnlyAt(0))) {
        makeReadOnlyAt(change);
        ASSERT_FALSE(HasFailure()) << "read-only at change " << change;
    }
    sample.print("volume cases");
}

INSTANTIATE_TEST_SUITE_P(Each, Volumes,
                         testing::Combine(testing::ValuesIn(places), testing::ValuesIn(scenarios())),
                         [](const auto &of) {
                             return std::get<0>(of.param) + ('_' + std::get<1>(of.param).name);
                         });

class ReadOnlyVolume : public VolumeTest, public testing::WithParamInterface<const char *>
{
protected:
    ReadOnlyVolume() : VolumeTest(GetParam(), scenarios().front()) {}
};

TEST_P(ReadOnlyVolume, CanBeRead)
{
    ASSERT_TRUE(m_volume->makeReadOnly());
    ASSERT_NO_THROW(start());
    const WorkspaceOverview overview = m_service->reload().result();
    ASSERT_EQ(overview.skills.size(), 3);
    for (const SkillSummary &skill : overview.skills) {
        EXPECT_FALSE(m_service->loadSkill(skill.id).result().skillMD.isEmpty());
        EXPECT_EQ(m_service->inspectCopies(skill.id).result().size(), 2);
    }
    EXPECT_EQ(m_service->scanImports().result().candidates.size(), 3);
    EXPECT_EQ(m_service->trashDates().result().size(), 2);
}

INSTANTIATE_TEST_SUITE_P(Each, ReadOnlyVolume, testing::ValuesIn(places),
                         [](const auto &of) { return std::string(of.param); });

} // namespace
} // namespace vornel

int main(int argc, char *argv[])
{
    vornel::hasOwnMounts = vornel::enterOwnMounts();
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}

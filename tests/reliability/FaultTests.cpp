#include "FaultyFileSystem.h"
#include "Promises.h"
#include "Sample.h"

namespace vornel {
namespace {

using Call = FaultyFileSystem::Call;

/// A kind of broken disk.
struct Disk
{
    Call failing;
    bool afterwards;  ///< whether a change is made before it is reported as failed
    bool canExchange; ///< whether two folders can change places in one step
    bool hasVolumes;  ///< whether each root is a volume of its own
    std::errc fault;
    int spacing = 1; ///< how many calls there are from one fault to the next
};

// Calls that only look are many and much alike, so only every seventh of them fails.
constexpr std::array disks{
    Disk{Call::Look, false, true, false, std::errc::io_error, 7},
    Disk{Call::Change, false, true, false, std::errc::no_space_on_device},
    Disk{Call::Change, true, true, false, std::errc::io_error},
    Disk{Call::Change, false, false, false, std::errc::read_only_file_system},
    Disk{Call::Change, true, true, true, std::errc::io_error},
};

class EveryFault : public testing::TestWithParam<Scenario>
{
protected:
    EveryFault() : m_rehearsal(GetParam()) {}

    /// Runs the operation on a disk of which the call of this number fails, or none for 0, and starts the
    /// service again. Returns how many calls there were.
    int failAt(int number, const Disk &disk)
    {
        m_rehearsal.reset();
        const auto files = std::make_shared<FaultyFileSystem>();
        files->failAfterwards(disk.afterwards);
        files->canExchange = disk.canExchange;
        files->hasVolumes = disk.hasVolumes;
        files->fault = disk.fault;
        files->failAt(number, disk.failing);
        auto reported = Reported::Nothing;
        try {
            GetParam().run(*m_rehearsal.start(files));
            reported = Reported::Success;
        } catch (const std::exception &) {
            EXPECT_TRUE(files->hasFailed());
        }
        const int calls = files->calls();
        if (!disk.afterwards)
            checkWhole(m_rehearsal);
        checkPromises(m_rehearsal, reported);
        return calls;
    }

    Rehearsal m_rehearsal;
};

TEST_P(EveryFault, LeavesEverythingWhole)
{
    Sample sample(GetParam(), 6);
    for (const Disk &disk : disks) {
        for (const int number : sample.of(failAt(0, disk), disk.spacing)) {
            failAt(number, disk);
            ASSERT_FALSE(HasFailure()) << "after fault " << number << " on disk " << &disk - disks.data();
        }
    }
    sample.print("disk faults");
}

INSTANTIATE_TEST_SUITE_P(Every, EveryFault, testing::ValuesIn(scenarios()),
                         testing::PrintToStringParamName());

} // namespace
} // namespace vornel

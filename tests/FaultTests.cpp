#include "FaultyFileSystem.h"
#include "Promises.h"

#include <iostream>

namespace vornel {
namespace {

using Call = FaultyFileSystem::Call;

/// How an operation meets a broken disk.
struct Disk
{
    Call failing;
    bool afterwards;  ///< a change is made before it is reported as failed
    bool canExchange; ///< two folders, in one step
    bool hasVolumes;  ///< one for each root
    std::errc fault;
    int stride = 1; ///< how many calls there are from one fault to the next
};

// Looks are many and much alike: of those, every seventh fails.
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

    /// Runs the operation with one fault, and starts again. Returns whether it came so far.
    bool failAt(int number, const Disk &disk)
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
        checkPromises(m_rehearsal, reported);
        return files->hasFailed();
    }

    Rehearsal m_rehearsal;
};

TEST_P(EveryFault, LeavesEverythingWhole)
{
    int faults = 0;
    for (const Disk &disk : disks) {
        for (int number = 1; failAt(number, disk) && !HasFailure(); number += disk.stride)
            ++faults;
        ASSERT_FALSE(HasFailure()) << "after fault " << faults;
    }
    std::cout << "disk faults: " << faults << " (" << GetParam().name << ")\n";
    EXPECT_GT(faults, 20);
}

INSTANTIATE_TEST_SUITE_P(Every, EveryFault, testing::ValuesIn(scenarios()),
                         [](const auto &scenario) { return scenario.param.name; });

} // namespace
} // namespace vornel

#include "PowerCutFileSystem.h"
#include "Promises.h"

#include <VORNELCore/ErrorMessage.h>

#include <iostream>

namespace vornel {
namespace {

class PowerCut : public testing::TestWithParam<Scenario>
{
protected:
    using Survival = PowerCutFileSystem::Survival;

    PowerCut() : m_rehearsal(GetParam()) {}

    /// Runs the operation until the power goes before a step, and starts again. Returns whether it came so
    /// far.
    bool cutAt(int step, Survival survival)
    {
        m_rehearsal.reset();
        const auto files = std::make_shared<PowerCutFileSystem>();
        files->cutAt(step);
        try {
            GetParam().run(*m_rehearsal.start(files));
        } catch (const std::exception &error) {
            EXPECT_TRUE(files->isOff()) << errorMessage(error).toStdString();
        }
        // Whoever has no power can't report a success either.
        const bool hasSucceeded = !files->isOff();
        files->forget(survival, static_cast<unsigned>(step));
        checkPromises(m_rehearsal, hasSucceeded ? Reported::Success : Reported::Nothing);
        return !hasSucceeded;
    }

    Rehearsal m_rehearsal;
};

TEST_P(PowerCut, AtAnyStepLeavesEverythingWhole)
{
    int cuts = 0;
    for (const Survival survival : {Survival::Nothing, Survival::Names, Survival::Some}) {
        for (int step = 1; cutAt(step, survival) && !HasFailure(); ++step)
            ++cuts;
        ASSERT_FALSE(HasFailure()) << "after cut " << cuts;
    }
    std::cout << "power cuts: " << cuts << " (" << GetParam().name << ")\n";
    EXPECT_GT(cuts, 6);
}

INSTANTIATE_TEST_SUITE_P(Every, PowerCut, testing::ValuesIn(scenarios()),
                         [](const auto &scenario) { return scenario.param.name; });

} // namespace
} // namespace vornel

#include "PowerCutFileSystem.h"
#include "Promises.h"
#include "Sample.h"

#include <VORNELCore/Errors/ErrorMessage.h>

namespace vornel {
namespace {

class PowerCut : public testing::TestWithParam<Scenario>
{
protected:
    using Survival = PowerCutFileSystem::Survival;

    PowerCut() : m_rehearsal(GetParam()) {}

    /// Runs the operation until the power fails before the step of this number, or to its end for 0, and
    /// starts the service again. Returns how many steps there were.
    int cutAt(int step, Survival survival)
    {
        m_rehearsal.reset();
        const auto files = std::make_shared<PowerCutFileSystem>();
        files->cutAt(step);
        try {
            GetParam().run(*m_rehearsal.start(files));
        } catch (const std::exception &error) {
            EXPECT_TRUE(files->isOff()) << errorMessage(error).toStdString();
        }
        // Without power, no success is reported either.
        const bool hasSucceeded = !files->isOff();
        const int steps = files->steps();
        files->forget(survival, static_cast<unsigned>(step));
        checkPromises(m_rehearsal, hasSucceeded ? Reported::Success : Reported::Nothing);
        return steps;
    }

    Rehearsal m_rehearsal;
};

TEST_P(PowerCut, AtAnyStepLeavesEverythingWhole)
{
    Sample sample(GetParam(), 4);
    for (const Survival survival : {Survival::Nothing, Survival::Names, Survival::Some}) {
        for (const int step : sample.of(cutAt(0, survival))) {
            cutAt(step, survival);
            ASSERT_FALSE(HasFailure()) << "after cut " << step;
        }
    }
    sample.print("power cuts");
}

INSTANTIATE_TEST_SUITE_P(Every, PowerCut, testing::ValuesIn(scenarios()), testing::PrintToStringParamName());

} // namespace
} // namespace vornel

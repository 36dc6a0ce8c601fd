#include "Rehearsal.h"

#include "StartingState.h"

namespace vornel {

Rehearsal::Rehearsal(const Scenario &scenario) : m_scenario(scenario)
{
    scenario.build(path("pristine"));
    reset();
    m_before = stateBelow(folder());
    const auto service = start(std::make_shared<PosixFileSystem>());
    m_scenario.run(*service);
    m_after = stateBelow(folder());
}

void Rehearsal::reset(const std::function<void()> &prepare) const
{
    fs::remove_all(folder());
    prepare();
    fs::copy(path("pristine"), folder(), fs::copy_options::recursive);
}

std::unique_ptr<LocalWorkspaceService> Rehearsal::start(std::shared_ptr<FileSystem> files) const
{
    return startService(folder(), std::move(files));
}

} // namespace vornel

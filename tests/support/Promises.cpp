#include "Promises.h"

#include "Aftermath.h"

#include <VORNELCore/Errors/ErrorMessage.h>

namespace vornel {

namespace {

Aftermath aftermathOf(const Rehearsal &rehearsal, bool mustBeDone)
{
    return {rehearsal.folder(), rehearsal.before(), rehearsal.after(), stateBelow(rehearsal.folder()),
            mustBeDone};
}

void checkWhole(const Aftermath &aftermath)
{
    checkLibrary(aftermath);
    checkTargets(aftermath);
}

void check(const Aftermath &aftermath)
{
    checkWhole(aftermath);
    checkBookkeeping(aftermath);
}

std::unique_ptr<LocalWorkspaceService> startAgain(const Rehearsal &rehearsal)
try {
    return rehearsal.start(std::make_shared<PosixFileSystem>());
} catch (const std::exception &error) {
    ADD_FAILURE() << "the workspace can't be opened: " << errorMessage(error).toStdString();
    return nullptr;
}

void checkCopiesCanBeMadeRight(LocalWorkspaceService &service)
{
    for (const SkillSummary &skill : service.reload().result().skills)
        EXPECT_EQ(service.synchronize(skill.id).result().syncState, SyncState::inSync)
            << skill.slug.toStdString();
}

} // namespace

void repeat(const Scenario &scenario, LocalWorkspaceService &service)
try {
    scenario.run(service);
} catch (const VORNELWorkspaceError &error) {
    EXPECT_EQ(error, scenario.refusal) << errorMessage(error).toStdString();
}

void checkWhole(const Rehearsal &rehearsal)
{
    const Aftermath aftermath = aftermathOf(rehearsal, false);
    checkWhole(aftermath);
    checkNoCopyIsMissing(aftermath);
}

void checkPromises(const Rehearsal &rehearsal, Reported reported)
try {
    auto service = startAgain(rehearsal);
    if (!service)
        return;
    const Aftermath first = aftermathOf(rehearsal, reported == Reported::Success);
    check(first);
    checkReplacedCopies(first);
    if (!rehearsal.scenario().takesEdits)
        checkCopiesCanBeMadeRight(*service);

    repeat(rehearsal.scenario(), *service);
    service = startAgain(rehearsal);
    if (!service)
        return;
    check(aftermathOf(rehearsal, true));
    checkCopiesCanBeMadeRight(*service);
} catch (const std::exception &error) {
    ADD_FAILURE() << errorMessage(error).toStdString();
}

} // namespace vornel

#include "LocalWorkspaceOperation.h"

#include <VORNELInfrastructure/Check/SkillCheck.h>

/// The service's operation that checks skills.
namespace vornel {

QFuture<QList<SkillProblem>> LocalWorkspaceService::checkSkills(QList<QUuid> ids)
{
    return perform(LockMode::Shared,
                   [=](const Workspace &workspace) { return vornel::checkSkills(workspace, ids); });
}

} // namespace vornel

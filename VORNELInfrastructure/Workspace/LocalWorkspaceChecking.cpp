#include "LocalWorkspaceOperation.h"

#include <VORNELInfrastructure/Check/SkillCheck.h>

/// The service's operations that check skills.
namespace vornel {

QFuture<QList<SkillProblem>> LocalWorkspaceService::checkSkills(QList<QUuid> ids)
{
    return perform(LockMode::Shared,
                   [=](const Workspace &workspace) { return vornel::checkSkills(workspace, ids); });
}

QFuture<QList<SkillProblem>> LocalWorkspaceService::checkText(QUuid id, QString text)
{
    return perform(LockMode::Shared,
                   [=](const Workspace &workspace) { return vornel::checkText(workspace, id, text); });
}

} // namespace vornel

#include "PendingImport.h"

#include "ImportCommit.h"
#include "ImportScan.h"
#include "NewSkills.h"

#include <VORNELCore/Errors/VORNELWorkspaceError.h>
#include <VORNELInfrastructure/Disk/BestEffort.h>

#include <algorithm>

namespace vornel {

ImportPlan PendingImport::scan(const Workspace &workspace)
{
    return m_plan.emplace(scanImports(workspace));
}

ImportPlan &PendingImport::plan()
{
    if (!m_plan)
        throw VORNELWorkspaceError::importPlanNotFound();
    return *m_plan;
}

ImportPlan PendingImport::resolve(const QUuid &collision, CollisionChoice choice)
{
    const auto found = std::ranges::find(plan().collisions, collision, &ImportCollision::id);
    if (found == plan().collisions.end())
        throw VORNELWorkspaceError::collisionNotFound(collision);
    found->choice = choice;
    plan().revision += 1;
    return plan();
}

ImportPlan PendingImport::resolveAll(CollisionChoice choice)
{
    for (ImportCollision &collision : plan().collisions)
        collision.choice = choice;
    plan().revision += 1;
    return plan();
}

ImportPlan PendingImport::exclude(const QString &slug)
{
    const auto isExcluded = [&slug](const auto &entry) { return entry.slug == slug; };
    plan().candidates.removeIf(isExcluded);
    plan().collisions.removeIf(isExcluded);
    plan().revision += 1;
    return plan();
}

void PendingImport::commit(const Workspace &workspace, const QUuid &planID,
                           const std::function<void(int done, int total)> &progress)
{
    if (plan().id != planID)
        throw VORNELWorkspaceError::importPlanNotFound();
    ImportCommit(workspace).run(plan(), progress);
    m_plan.reset();
    bestEffort([&] { forgetSettledSkills(workspace); }); // else the next import does
}

} // namespace vornel

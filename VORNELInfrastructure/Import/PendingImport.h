#pragma once

#include <VORNELCore/Records/ImportModels.h>
#include <VORNELInfrastructure/Workspace/Workspace.h>

#include <functional>
#include <optional>

namespace vornel {

/// The plan of the last scan, until it is committed. All but `scan` throw `importPlanNotFound` without one.
class PendingImport
{
public:
    ImportPlan scan(const Workspace &workspace);

    /// Chooses a side of a collision; throws `collisionNotFound`.
    ImportPlan resolve(const QUuid &collision, CollisionChoice choice);

    /// Chooses this side of every collision.
    ImportPlan resolveAll(CollisionChoice choice);

    /// Leaves a skill out of the import.
    ImportPlan exclude(const QString &slug);

    /// Throws `importPlanNotFound` also when the plan is another one than the caller has seen.
    /// `progress` is told how many of how many skills are staged.
    void commit(const Workspace &workspace, const QUuid &planID,
                const std::function<void(int done, int total)> &progress);

private:
    ImportPlan &plan();

    std::optional<ImportPlan> m_plan;
};

} // namespace vornel

#pragma once

#include <VORNELCore/Records/ImportModels.h>

#include <QFuture>

namespace vornel {

/// What the user decides about a planned import as a whole, and about skills without a collision.
class ImportReviewing
{
public:
    virtual ~ImportReviewing() = default;

    /// Records the side to keep for every collision of the pending plan, in place of what was chosen for any,
    /// and returns the plan as it is then. May fail with `notBootstrapped` or `importPlanNotFound`.
    virtual QFuture<ImportPlan> resolveCollisions(CollisionChoice choice) = 0;

    /// Leaves the skill of this slug out of the pending plan, and returns the plan as it is then. The skill
    /// stays where it is, and the next scan finds it again. May fail with `notBootstrapped` or
    /// `importPlanNotFound`.
    virtual QFuture<ImportPlan> excludeFromImport(QString slug) = 0;
};

} // namespace vornel

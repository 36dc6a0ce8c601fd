#pragma once

#include <VORNELCore/Records/ImportModels.h>

#include <QFuture>

namespace vornel {

/// What the user decides about a planned import besides its collisions.
class ImportReviewing
{
public:
    virtual ~ImportReviewing() = default;

    /// Leaves the skill of this slug out of the pending plan, and returns the plan as it is then. The skill
    /// stays where it is, and the next scan finds it again. May fail with `notBootstrapped` or
    /// `importPlanNotFound`.
    virtual QFuture<ImportPlan> excludeFromImport(QString slug) = 0;
};

} // namespace vornel

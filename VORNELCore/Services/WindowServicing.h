#pragma once

#include "CopyRepairing.h"
#include "ImportReviewing.h"
#include "TargetInspecting.h"
#include "TrashInspecting.h"
#include "WorkspaceServicing.h"

namespace vornel {

/// All that a window asks of the workspace: its operations, and the looks, reviews and repairs beside them.
class WindowServicing : public WorkspaceServicing,
                        public TargetInspecting,
                        public TrashInspecting,
                        public ImportReviewing,
                        public CopyRepairing
{};

} // namespace vornel

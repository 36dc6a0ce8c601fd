#pragma once

#include "CopyAdopting.h"
#include "CopyInspecting.h"
#include "CopyRepairing.h"
#include "FileEditing.h"
#include "HistoryKeeping.h"
#include "ImportReviewing.h"
#include "NewSkillFinding.h"
#include "PropertyEditing.h"
#include "RecoveryKeeping.h"
#include "SkillChecking.h"
#include "SkillExchange.h"
#include "TargetComparing.h"
#include "TrashInspecting.h"
#include "Undoing.h"
#include "WorkspaceServicing.h"

namespace vornel {

/// All that a window asks of the workspace: its operations, and the looks, reviews and repairs beside them.
class WindowServicing : public WorkspaceServicing,
                        public CopyInspecting,
                        public TrashInspecting,
                        public ImportReviewing,
                        public NewSkillFinding,
                        public TargetComparing,
                        public CopyRepairing,
                        public CopyAdopting,
                        public HistoryKeeping,
                        public Undoing,
                        public RecoveryKeeping,
                        public PropertyEditing,
                        public SkillChecking,
                        public SkillExchange,
                        public FileEditing
{};

} // namespace vornel

#pragma once

#include <VORNELCore/Services/CopyInspecting.h>

namespace vornel {

/// Throws `CommandFailure` "targetOccupied" where a skill that goes to these places would replace folders of
/// others without `mayReplace`, or meets what can't be replaced.
void refuseOccupied(CopyInspecting &copies, const QList<TargetPlace> &places, bool mayReplace);

} // namespace vornel

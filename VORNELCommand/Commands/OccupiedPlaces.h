#pragma once

#include "Session.h"

namespace vornel {

/// Throws `CommandFailure` "targetOccupied" when these places hold something that can't be replaced, or
/// folders that VORNEL didn't install and the command line lacks "--replace".
void refuseOccupied(const Session &session, const QList<TargetPlace> &places);

} // namespace vornel

#pragma once

#include "Session.h"

namespace vornel {

/// Throws `CommandFailure` "targetOccupied" where a skill that goes to these places would replace folders of
/// others and the user hasn't asked for that by "--replace", or meets what can't be replaced.
void refuseOccupied(const Session &session, const QList<TargetPlace> &places);

} // namespace vornel

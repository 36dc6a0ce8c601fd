#pragma once

#include "Rehearsal.h"

namespace vornel {

/// What the operation had reported before it was interrupted.
enum class Reported { Nothing, Success };

/// Checks, by a new start on what an interruption has left, what the program promises: every skill and every
/// entry of the history is whole, old or new, nothing else has changed, no rubbish is left, the copies can be
/// made right, and the operation can be repeated. An operation that had reported success must be done.
void checkPromises(const Rehearsal &rehearsal, Reported reported = Reported::Nothing);

/// Checks of what a failed operation has left, without a new start, that every skill and every copy is whole,
/// old or new, and that nothing else has changed.
void checkWhole(const Rehearsal &rehearsal);

/// Runs an operation that may have been done before: it succeeds, or refuses as it then does.
void repeat(const Scenario &scenario, LocalWorkspaceService &service);

} // namespace vornel

#pragma once

#include "Rehearsal.h"

namespace vornel {

/// What the interrupted operation had said of itself.
enum class Reported { Nothing, Success };

/// Checks, by a new start on what an interruption has left, what the program promises: every skill and every
/// entry of the history is whole, old or new, nothing else has changed, no rubbish is left, the copies can be
/// made right, and the operation can be repeated. An operation that had reported success must be done.
void checkPromises(const Rehearsal &rehearsal, Reported reported = Reported::Nothing);

} // namespace vornel

#pragma once

#include "Workspace.h"

namespace vornel {

/// Puts right what an interrupted operation left: a skill whose swap was cut short comes back from the
/// recovery folder, and abandoned staging folders are removed. Copies that only the user can judge stay.
void recoverFromCrash(const Workspace &workspace);

} // namespace vornel

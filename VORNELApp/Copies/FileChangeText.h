#pragma once

#include <VORNELCore/Records/Enumerations.h>

#include <QString>

namespace vornel {

/// What marks a file of a comparison: "+" where only the new side has it, "−" where only the old one does.
QString symbolOf(FileChange change);

/// "ajouté", "supprimé", "modifié".
QString wordingOf(FileChange change);

} // namespace vornel

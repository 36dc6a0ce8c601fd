#pragma once

#include "Photographer.h"
#include "Stage.h"

/// What the pictures show, each scene played as a user would. Those that take a stage as it is begin and end
/// on a filled library, but for the first import.
namespace vornel {

/// A start that fails.
void photographFailure(Photographer &photographer);

/// A scan that fails.
void photographImportFailure(Photographer &photographer);

/// An import that would replace folders of others.
void photographOccupiedImport(Photographer &photographer);

/// From the launch to the end of the import.
void photographOnboarding(Photographer &photographer, Stage &stage);

/// The other destinations while there is nothing in them.
void photographEmptyDestinations(Photographer &photographer, Stage &stage);

void photographLibrary(Photographer &photographer, Stage &stage);
void photographEditor(Photographer &photographer, Stage &stage);
void photographCategories(Photographer &photographer);
void photographCreation(Photographer &photographer, Stage &stage);
void photographTrash(Photographer &photographer, Stage &stage);
void photographAttention(Photographer &photographer, Stage &stage);

/// What no demonstration holds, but a user's library may: very long names, other scripts, many files.
void photographContent(Photographer &photographer);

/// What comes over any screen when an operation fails.
void photographError(Photographer &photographer, Stage &stage);

/// The library with nothing left in it.
void photographEmptyLibrary(Photographer &photographer, Stage &stage);

/// The window while it waits for an operation, and closes.
void photographClosing(Photographer &photographer, Stage &stage);

} // namespace vornel

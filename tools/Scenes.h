#pragma once

#include "Photographer.h"
#include "Studio.h"

/// What the pictures show, each scene played as a user would. Those that take a studio as it is begin and end
/// on a filled library, but for the first import.
namespace vornel {

/// A start that fails.
void photographFailure(Photographer &photographer);

/// A scan that fails.
void photographImportFailure(Photographer &photographer);

/// An import that would replace folders of others.
void photographOccupiedImport(Photographer &photographer);

/// From the launch to the end of the import.
void photographOnboarding(Photographer &photographer, Studio &studio);

/// The other destinations while there is nothing in them.
void photographEmptyDestinations(Photographer &photographer, Studio &studio);

void photographLibrary(Photographer &photographer, Studio &studio);
void photographEditor(Photographer &photographer, Studio &studio);
void photographCategories(Photographer &photographer);
void photographCreation(Photographer &photographer, Studio &studio);
void photographTrash(Photographer &photographer, Studio &studio);
void photographAttention(Photographer &photographer, Studio &studio);

/// What no demonstration holds, but a user's library may: very long names, other scripts, many files.
void photographContent(Photographer &photographer);

/// A confirmation that offers to take the action back, and then to bring it back.
void photographUndo(const Photographer &photographer, Studio &studio);

/// What comes over any screen when an operation fails.
void photographError(Photographer &photographer, Studio &studio);

/// A library in which a skill's own folder can't be read: what was shown stays, and the next start fails.
void photographUnreadable(Photographer &photographer, Studio &studio);

/// The library with nothing left in it, and the import that it offers.
void photographEmptyLibrary(Photographer &photographer, Studio &studio);

/// The window while it waits for an operation, and closes.
void photographClosing(Photographer &photographer, Studio &studio);

} // namespace vornel

#pragma once

#include <VORNELCore/Services/DraftKeeping.h>

namespace vornel {

/// What was found when the unsaved text of a skill was looked for.
struct FoundDraft
{
    std::optional<KeptDraft> draft;
    bool isStale = false; ///< whether the edits began with another text than the skill holds
    QString failure; ///< why it isn't known whether there is a draft, as the user reads it; otherwise empty
};

} // namespace vornel

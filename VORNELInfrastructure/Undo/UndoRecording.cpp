#include "UndoRecording.h"

#include <algorithm>
#include <ranges>

namespace vornel {

bool SkillChange::isIdle() const
{
    const bool hasReplaced = std::ranges::any_of(copies | std::views::values,
                                                 [](const Copy &copy) { return copy.former.has_value(); });
    return category.isEmpty() && move == Move::none && !hasNewContent() && !hasReplaced;
}

} // namespace vornel

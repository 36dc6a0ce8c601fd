#include "UndoRecording.h"

#include <algorithm>
#include <ranges>

namespace vornel {

bool SkillChange::isIdle() const
{
    const bool hasReplaced = std::ranges::any_of(copies | std::views::values,
                                                 [](const Copy &copy) { return copy.former.has_value(); });
    return !properties && move == Move::none && !hasNewContent() && !hasReplaced;
}

void removeDone(UndoRecording &changes, const UndoRecording &done)
{
    for (const auto &[id, change] : done) {
        const auto wanted = changes.find(id);
        if (wanted == changes.end())
            continue;
        for (const TargetKind target : change.copies | std::views::keys)
            wanted->second.copies.erase(target);
        if (change.revision != 0)
            changes.erase(wanted);
    }
    removeIdle(changes);
}

void removeIdle(UndoRecording &changes)
{
    std::erase_if(changes, [](const auto &change) { return change.second.isIdle(); });
}

} // namespace vornel

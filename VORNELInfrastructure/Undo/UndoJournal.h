#pragma once

#include "UndoRecording.h"

#include <VORNELCore/Records/UndoStep.h>

#include <mutex>
#include <utility>

namespace vornel {

/// Remembers what takes the last operation back, in memory alone. May be asked from any thread.
class UndoJournal
{
public:
    /// Remembers this operation, unless there is nothing to take back.
    void remember(UndoRecording changes, bool isUndo);
    void forget() { remember({}, false); }

    std::optional<UndoStep> step() const;

    /// The last operation; throws `integrityFailure` if that is another one than this.
    std::pair<UndoStep, UndoRecording> last(const QUuid &step) const;

private:
    mutable std::mutex m_mutex;
    std::optional<UndoStep> m_step;
    UndoRecording m_changes;
};

} // namespace vornel

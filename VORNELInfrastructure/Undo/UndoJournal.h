#pragma once

#include "UndoRecording.h"

#include <VORNELCore/Records/UndoStep.h>

#include <mutex>

namespace vornel {

/// An operation that can be taken back.
struct UndoableOperation
{
    UndoStep step;
    UndoRecording changes;   ///< what is to be taken back
    UndoRecording done = {}; ///< what attempts to do so that have failed have changed
};

/// Remembers what takes the last operation back, in memory alone. May be asked from any thread.
class UndoJournal
{
public:
    /// Remembers this operation, unless there is nothing to take back, by an identifier of its own.
    void remember(UndoRecording changes, UndoStep step);
    void forget() { remember({}, {}); }

    /// Remembers an operation that could be taken back only in part, or not at all.
    void resume(UndoableOperation operation);

    std::optional<UndoStep> step() const;

    /// The last operation; throws `integrityFailure` if that is another one than this.
    UndoableOperation last(const QUuid &step) const;

private:
    mutable std::mutex m_mutex;
    std::optional<UndoableOperation> m_last;
};

} // namespace vornel

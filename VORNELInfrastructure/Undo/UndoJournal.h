#pragma once

#include "UndoRecording.h"

#include <VORNELCore/Records/UndoStep.h>

namespace vornel {

/// Remembers what takes the last operation back, in memory alone.
class UndoJournal
{
public:
    /// Remembers this operation, unless there is nothing to take back.
    void remember(UndoRecording changes, bool isUndo);
    void forget() { m_step.reset(); }

    const std::optional<UndoStep> &step() const { return m_step; }

    /// Throws `integrityFailure` for another step than the last one.
    const UndoRecording &changesOf(const QUuid &step) const;

private:
    std::optional<UndoStep> m_step;
    UndoRecording m_changes;
};

} // namespace vornel

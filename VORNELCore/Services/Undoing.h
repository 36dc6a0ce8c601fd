#pragma once

#include <VORNELCore/Records/UndoStep.h>
#include <VORNELCore/Records/WorkspaceModels.h>

#include <QFuture>

#include <optional>

namespace vornel {

/// Takes back the last operation of this service, if that was a save, an adoption, a merge, a
/// synchronisation, a return to a version, a move to the trash or a change of files, of category or of other
/// properties.
class Undoing
{
public:
    virtual ~Undoing() = default;

    /// What `undo` would take back; nothing where there is no such operation, or it left nothing to undo.
    /// Waits for nothing: an operation that has ended is in it.
    virtual std::optional<UndoStep> undoableStep() const = 0;

    /// Brings back what that step has changed: contents and properties by new revisions, skills from the
    /// trash or into it, and copies that had content of their own. So nothing that was written is lost, and
    /// undoing once more is redoing. May fail with `notBootstrapped`, `partialSync`, a file-system error or,
    /// before anything is changed, with `integrityFailure` or `duplicateSlug` where something of it has moved
    /// on: then it can't be taken back any more. After another failure the same step stands for what is left.
    virtual QFuture<WorkspaceOverview> undo(QUuid step) = 0;
};

} // namespace vornel

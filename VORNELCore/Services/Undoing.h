#pragma once

#include <VORNELCore/Records/UndoStep.h>
#include <VORNELCore/Records/WorkspaceModels.h>

#include <QFuture>

#include <optional>

namespace vornel {

/// Takes back the last operation of this service that changed skills. May fail with `notBootstrapped` or a
/// file-system error.
class Undoing
{
public:
    virtual ~Undoing() = default;

    /// What `undo` would take back; nothing where there is no such operation, or it left nothing to undo.
    virtual QFuture<std::optional<UndoStep>> undoableStep() = 0;

    /// Brings skills, copies and categories back to what they were before that step, by new revisions: so
    /// nothing that was written is lost, and undoing once more brings it back. Fails with `integrityFailure`
    /// where anything of it has moved on since, and then changes nothing.
    virtual QFuture<WorkspaceOverview> undo(QUuid step) = 0;
};

} // namespace vornel

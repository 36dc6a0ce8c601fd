#pragma once

#include <VORNELCore/Errors/VORNELWorkspaceError.h>

#include <QString>

namespace vornel {

/// How an action of the application model ended: whatever the model's fields say by the time it is read, this
/// is of that action alone.
struct Outcome
{
    bool succeeded = true;
    QString errorCase = {}; ///< of the workspace error, "revisionConflict" for example; empty for any other
    QString message = {};   ///< what the user reads about a failure; empty where there was nothing to act on

    explicit operator bool() const { return succeeded; }

    bool isCase(const char *name) const { return errorCase == QLatin1StringView(name); }

    /// Whether all that failed is that an assistant got no copy.
    bool isSynchronizationIncomplete() const { return isCase(WorkspaceErrorCase::PartialSync::name); }
};

} // namespace vornel

#pragma once

#include <VORNELCore/Errors/VORNELWorkspaceError.h>

#include <QString>

#include <exception>

namespace vornel {

/// How an action or an answer of the service ended: whatever the model's fields say by the time it is read,
/// this is of that one alone.
struct Outcome
{
    bool succeeded = true;
    QString errorCase = {}; ///< of the workspace error, "revisionConflict" for example; empty for any other
    QString message = {};   ///< what the user reads about a failure; empty where there was nothing to act on

    static Outcome nothingDone() { return {.succeeded = false}; }
    static Outcome failedWith(const std::exception &error);

    explicit operator bool() const { return succeeded; }

    bool isCase(const char *name) const { return errorCase == QLatin1StringView(name); }

    /// Whether all that failed is that an assistant got no copy.
    bool isSynchronizationIncomplete() const { return isCase(WorkspaceErrorCase::PartialSync::name); }
};

} // namespace vornel

#pragma once

#include <VORNELCore/Errors/VORNELWorkspaceError.h>
#include <VORNELInfrastructure/Workspace/LocalWorkspaceService.h>

#include <QStringList>

#include <filesystem>
#include <functional>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

namespace vornel {

/// An operation that may be interrupted anywhere, in the two ways in which it can be run.
struct Scenario
{
    std::string name;
    std::function<void(const std::filesystem::path &folder)> build; ///< makes the roots in an empty folder
    std::function<void(LocalWorkspaceService &)> run;               ///< on a service that has started
    QStringList arguments; ///< of vornelctl, in the folder that holds the roots and "text"; none if it can't
    /// The error with which it refuses to be done a second time, if it does.
    std::optional<VORNELWorkspaceError> refusal = {};
    bool takesEdits = false; ///< whether it is about what a synchronisation settles, and comes before one
};

/// Every operation for which the promises of docs/reliability.md are tested.
const std::vector<Scenario> &scenarios();

void PrintTo(const Scenario &scenario, std::ostream *stream);

} // namespace vornel

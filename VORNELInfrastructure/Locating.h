#pragma once

#include "Workspace.h"

#include <VORNELCore/FailurePlace.h>
#include <VORNELCore/VORNELWorkspaceError.h>

namespace vornel {

/// Throws `error`, which is about this skill's folder and says so where failures concern one skill.
template <typename Error>
[[noreturn]] void failAt(const Workspace &workspace, const std::filesystem::path &folder, const Error &error)
{
    if (workspace.failureScope == FailureScope::Skill)
        throw Located<Error>(error, folder);
    throw error;
}

/// Runs `action`, which works on this skill's folder; what it throws says so where failures concern one
/// skill.
template <typename Action>
auto locating(const Workspace &workspace, const std::filesystem::path &folder, const Action &action)
try {
    return action();
} catch (const VORNELWorkspaceError &error) {
    failAt(workspace, folder, error);
} catch (const std::filesystem::filesystem_error &error) {
    failAt(workspace, folder, error);
}

} // namespace vornel

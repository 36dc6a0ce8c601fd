#pragma once

#include "Workspace.h"

#include <VORNELCore/FailurePlace.h>
#include <VORNELCore/VORNELWorkspaceError.h>

namespace vornel {

/// The skill of this folder. In the trash, where folders are named by identifiers, its slug is read from its
/// manifest or, where that is spoiled, from its history.
FailurePlace placeOf(const Workspace &workspace, const std::filesystem::path &folder);

/// The skill of this slug, without a folder.
FailurePlace placeOf(const Workspace &workspace, const QString &slug);

/// Throws `error`, which is about a skill, named by its folder or slug, and says so where failures concern
/// one skill.
template <typename Skill, typename Error>
[[noreturn]] void failAt(const Workspace &workspace, const Skill &skill, const Error &error)
{
    if (workspace.failureScope == FailureScope::Skill)
        throw Located<Error>(error, placeOf(workspace, skill));
    throw error;
}

/// Runs `action`, which works on a skill, named by its folder or slug; what it throws says so where failures
/// concern one skill.
template <typename Skill, typename Action>
auto locating(const Workspace &workspace, const Skill &skill, const Action &action)
try {
    return action();
} catch (const FailurePlace &) {
    throw;
} catch (const VORNELWorkspaceError &error) {
    failAt(workspace, skill, error);
} catch (const std::filesystem::filesystem_error &error) {
    failAt(workspace, skill, error);
}

} // namespace vornel

#pragma once

#include "Workspace.h"

#include <VORNELCore/Errors/FailurePlace.h>
#include <VORNELCore/Errors/VORNELWorkspaceError.h>

namespace vornel {

/// The skill of this folder. In the trash, where folders are named by identifiers, its slug is read from its
/// manifest or, where that can't be read, from its history.
FailurePlace placeOf(const Workspace &workspace, const std::filesystem::path &folder);

/// The skill of this slug, without a folder.
FailurePlace placeOf(const Workspace &workspace, const QString &slug);

/// A file of the workspace that belongs to no skill.
struct OwnFile
{
    std::filesystem::path path;
};
FailurePlace placeOf(const Workspace &workspace, const OwnFile &file);

/// Throws `error`, which is about `subject`: a skill, by its folder or slug, or a file of the workspace. The
/// error carries that place where the failure scope is one skill.
template <typename Subject, typename Error>
[[noreturn]] void failAt(const Workspace &workspace, const Subject &subject, const Error &error)
{
    if (workspace.failureScope == FailureScope::Skill)
        throw Located<Error>(error, placeOf(workspace, subject));
    throw error;
}

/// Runs `action`, which works on `subject`; what it throws is thrown again by `failAt`.
template <typename Subject, typename Action>
auto locating(const Workspace &workspace, const Subject &subject, const Action &action)
try {
    return action();
} catch (const FailurePlace &) {
    throw;
} catch (const VORNELWorkspaceError &error) {
    failAt(workspace, subject, error);
} catch (const std::filesystem::filesystem_error &error) {
    failAt(workspace, subject, error);
}

} // namespace vornel

#pragma once

#include <VORNELCore/Services/WorkspaceLocating.h>

#include <filesystem>
#include <functional>

namespace vornel {

/// The value of an environment variable; null when it isn't set.
using Environment = std::function<const char *(const char *variable)>;

/// The three folders that the program works on.
struct WorkspaceRoots
{
    std::filesystem::path workspace;
    std::filesystem::path claude;
    std::filesystem::path codex;

    /// The defaults below `home`, each replaced by VORNEL_WORKSPACE_PATH, VORNEL_CLAUDE_SKILLS_PATH or
    /// VORNEL_CODEX_SKILLS_PATH where that holds an absolute path; any other value is passed over.
    static WorkspaceRoots fromEnvironment(const Environment &environment, const std::filesystem::path &home,
                                          const WorkspaceLocating &locator);
};

/// The user's home folder: HOME, or else that of the user's account. Throws `std::system_error` when there is
/// neither.
std::filesystem::path homeFolder(const Environment &environment);

} // namespace vornel

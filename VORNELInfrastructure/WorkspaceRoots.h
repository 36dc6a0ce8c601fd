#pragma once

#include <VORNELCore/WorkspaceLocating.h>

#include <QProcessEnvironment>

#include <filesystem>

namespace vornel {

/// The three folders that the program works on.
struct WorkspaceRoots
{
    std::filesystem::path workspace;
    std::filesystem::path claude;
    std::filesystem::path codex;

    /// The defaults below `home`, each replaced by VORNEL_WORKSPACE_PATH, VORNEL_CLAUDE_SKILLS_PATH or
    /// VORNEL_CODEX_SKILLS_PATH where that holds an absolute path; any other value is passed over.
    static WorkspaceRoots fromEnvironment(const QProcessEnvironment &environment,
                                          const std::filesystem::path &home,
                                          const WorkspaceLocating &locator);
};

} // namespace vornel

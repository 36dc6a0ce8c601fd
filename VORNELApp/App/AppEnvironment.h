#pragma once

#include <VORNELCore/Services/DraftKeeping.h>
#include <VORNELCore/Services/WindowServicing.h>
#include <VORNELCore/Services/WorkspaceLocating.h>
#include <VORNELCore/Services/WorkspaceWatching.h>
#include <VORNELInfrastructure/Workspace/WorkspaceRoots.h>

#include <QSettings>

#include <memory>

namespace vornel {

class AppModel;

/// What the application works with, worked out once at the start.
struct AppEnvironment
{
    std::filesystem::path workspaceURL;
    std::filesystem::path claudeRoot;
    std::filesystem::path codexRoot;
    std::shared_ptr<WindowServicing> workspaceService;
    std::shared_ptr<QSettings> defaults;
    std::shared_ptr<DraftKeeping> drafts;
    std::shared_ptr<WorkspaceWatching> watch = nullptr;

    /// From the environment's variables, with the defaults below `home`. Touches no folder. With
    /// VORNEL_TEST_MODE at exactly "1", the settings are private to this process.
    static AppEnvironment live(const WorkspaceLocating &workspaceLocator, const Environment &environment,
                               const std::filesystem::path &home);

    std::unique_ptr<AppModel> makeAppModel() const;
};

} // namespace vornel

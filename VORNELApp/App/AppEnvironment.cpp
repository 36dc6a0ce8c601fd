#include "AppEnvironment.h"

#include <VORNELApp/Model/AppModel.h>
#include <VORNELInfrastructure/Disk/PosixFileSystem.h>
#include <VORNELInfrastructure/Drafts/LocalDrafts.h>
#include <VORNELInfrastructure/Workspace/LocalWorkspaceService.h>

#include <QCoreApplication>

#include <string_view>

using namespace Qt::StringLiterals;

namespace vornel {

namespace {

std::shared_ptr<QSettings> settings(const Environment &environment)
{
    const char *testMode = environment("VORNEL_TEST_MODE");
    const bool isPrivate = testMode != nullptr && testMode == std::string_view("1");
    const QString name =
        isPrivate ? u"com.brindlecove.vornel.ui-test."_s + QString::number(QCoreApplication::applicationPid())
                  : u"com.brindlecove.vornel"_s;
    return std::make_shared<QSettings>(QSettings::IniFormat, QSettings::UserScope, name);
}

} // namespace

AppEnvironment AppEnvironment::live(const WorkspaceLocating &workspaceLocator, const Environment &environment,
                                    const std::filesystem::path &home)
{
    const WorkspaceRoots roots = WorkspaceRoots::fromEnvironment(environment, home, workspaceLocator);
    const auto watch = std::make_shared<WorkspaceWatch>();
    const auto service = std::make_shared<LocalWorkspaceService>(std::make_shared<PosixFileSystem>(),
                                                                 FailureScope::Skill, watch);
    const auto drafts = std::make_shared<LocalDrafts>(std::make_shared<PosixFileSystem>(), roots.workspace);
    return {.workspaceURL = roots.workspace,
            .claudeRoot = roots.claude,
            .codexRoot = roots.codex,
            .workspaceService = service,
            .defaults = settings(environment),
            .drafts = drafts,
            .watch = watch};
}

std::unique_ptr<AppModel> AppEnvironment::makeAppModel() const
{
    return std::make_unique<AppModel>(workspaceService, workspaceURL, claudeRoot, codexRoot, defaults, drafts,
                                      watch);
}

} // namespace vornel

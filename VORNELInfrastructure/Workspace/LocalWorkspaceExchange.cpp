#include "LocalWorkspaceOperation.h"

#include <VORNELInfrastructure/Exchange/SkillAdder.h>
#include <VORNELInfrastructure/Exchange/SkillExporter.h>

/// The service's operations on skills that come and go.
namespace vornel {

QFuture<SkillExport> LocalWorkspaceService::exportSkills(QList<QUuid> ids, std::filesystem::path file)
{
    return perform(LockMode::Shared,
                   [=](const Workspace &workspace) { return vornel::exportSkills(workspace, ids, file); });
}

QFuture<QList<SkillAddition>> LocalWorkspaceService::reviewAddition(QList<std::filesystem::path> sources)
{
    return perform(LockMode::Exclusive,
                   [=](const Workspace &workspace) { return SkillAdder(workspace, sources).review(); });
}

QFuture<std::optional<QByteArray>> LocalWorkspaceService::readAddedFile(QList<std::filesystem::path> sources,
                                                                        SkillAddition reviewed,
                                                                        QString relativePath)
{
    return perform(LockMode::Exclusive, [=](const Workspace &workspace) {
        return SkillAdder(workspace, sources).readFile(reviewed, relativePath);
    });
}

QFuture<QList<SkillDetail>> LocalWorkspaceService::addSkills(QList<std::filesystem::path> sources,
                                                             QList<SkillAddition> reviewed)
{
    return perform(LockMode::Exclusive,
                   [=](const Workspace &workspace) { return SkillAdder(workspace, sources).add(reviewed); });
}

} // namespace vornel

#include "LocalWorkspaceOperation.h"

#include <VORNELInfrastructure/Skills/FileEdit.h>
#include <VORNELInfrastructure/Skills/SkillDuplication.h>

/// The service's operations on the files of skills.
namespace vornel {

QFuture<SkillDetail> LocalWorkspaceService::changeFiles(QUuid id, QList<PathChange> changes,
                                                        qint64 expectedRevision)
{
    return performUndoable(UndoableAction::files, [=](const Workspace &workspace) {
        return FileEdit(workspace).run(id, changes, expectedRevision);
    });
}

QFuture<QStringList> LocalWorkspaceService::emptyFolders(QUuid id)
{
    return perform(LockMode::Shared,
                   [=](const Workspace &workspace) { return FileEdit(workspace).emptyFolders(id); });
}

QFuture<std::shared_ptr<QFile>> LocalWorkspaceService::openFile(QUuid id, QString relativePath)
{
    return perform(LockMode::Shared,
                   [=](const Workspace &workspace) { return FileEdit(workspace).open(id, relativePath); });
}

QFuture<SkillDetail> LocalWorkspaceService::duplicateSkill(QUuid id, QString slug,
                                                           std::optional<QString> displayName)
{
    return perform(LockMode::Exclusive, [=](const Workspace &workspace) {
        return vornel::duplicateSkill(workspace, id, slug, displayName);
    });
}

} // namespace vornel

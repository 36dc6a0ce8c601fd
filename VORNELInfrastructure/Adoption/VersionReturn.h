#pragma once

#include <VORNELCore/Records/WorkspaceModels.h>
#include <VORNELInfrastructure/Workspace/Workspace.h>

#include <QStringList>

namespace vornel {

/// Makes a version of its history a skill's next revision. Does and throws what `HistoryKeeping::revert`
/// says.
SkillDetail returnToVersion(const Workspace &workspace, const QUuid &id, qint64 expectedRevision,
                            const QString &entry, const QStringList &paths);

} // namespace vornel

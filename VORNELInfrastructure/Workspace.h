#pragma once

#include "Configuration.h"
#include "FileSystem.h"

#include <QHash>
#include <QMap>
#include <QString>
#include <QUuid>

namespace vornel {

/// Per skill, the targets whose last synchronisation failed, each with the reason as the user reads it. A
/// skill without failures has no entry.
using FailedSyncTargets = QHash<QUuid, QMap<TargetKind, QString>>;

/// What every job of the service works on.
struct Workspace
{
    FileSystem &files;
    const Configuration &config;
    FailedSyncTargets &failedSyncTargets;
};

/// Refuses a root that is a link with `symlinkUnsupported`; a root that does not exist passes.
void refuseLinkedRoot(const FileSystem &files, const std::filesystem::path &root);

} // namespace vornel

#pragma once

#include "Configuration.h"
#include "FileSystem.h"

#include <QHash>
#include <QMap>
#include <QString>
#include <QUuid>

namespace vornel {

/// Why targets have failed, as the user reads it.
using TargetReasons = QMap<TargetKind, QString>;

/// Per skill, the targets whose last synchronisation failed. A skill without failures has no entry.
using FailedSyncTargets = QHash<QUuid, TargetReasons>;

/// Per skill, the targets whose copy couldn't be looked at when the skill's state was last worked out.
using UnreadableCopies = QHash<QUuid, TargetReasons>;

/// What the failure to read something of one skill means for the others.
enum class FailureScope {
    Library, ///< an overview fails with it
    Skill    ///< a copy that can't be looked at makes its own skill `failed`; errors name the folder they are
             ///< about
};

/// What every job of the service works on.
struct Workspace
{
    FileSystem &files;
    const Configuration &config;
    FailedSyncTargets &failedSyncTargets;
    UnreadableCopies &unreadableCopies;
    FailureScope failureScope = FailureScope::Library;
};

/// Refuses a root that is a link with `symlinkUnsupported`; a root that does not exist passes.
void refuseLinkedRoot(const FileSystem &files, const std::filesystem::path &root);

} // namespace vornel

#pragma once

#include "Configuration.h"

#include <VORNELInfrastructure/Disk/FileSystem.h>

#include <QHash>
#include <QMap>
#include <QString>
#include <QUuid>

#include <string>

namespace vornel {

/// Why targets have failed, as the user reads it.
using TargetReasons = QMap<TargetKind, QString>;

/// Per skill, the targets whose last synchronisation failed. A skill without failures has no entry.
using FailedSyncTargets = QHash<QUuid, TargetReasons>;

/// What was found wrong with the copies of a skill when its state was last worked out.
struct CopyFindings
{
    TargetReasons unreadable = {}; ///< why which of them couldn't be looked at
    QMap<TargetKind, std::string> drifted =
        {}; ///< by which it is `drifted`, with the digests of their content
};

/// Per skill. One of which nothing was found has no entry.
using FoundCopies = QHash<QUuid, CopyFindings>;

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
    FoundCopies &foundCopies;
    FailureScope failureScope = FailureScope::Library;
};

/// Refuses a root that is a link with `symlinkUnsupported`; a root that does not exist passes.
void refuseLinkedRoot(const FileSystem &files, const std::filesystem::path &root);

} // namespace vornel

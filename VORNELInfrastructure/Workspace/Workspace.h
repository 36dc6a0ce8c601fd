#pragma once

#include "Configuration.h"

#include <VORNELInfrastructure/Disk/FileSystem.h>
#include <VORNELInfrastructure/History/EntryTrees.h>
#include <VORNELInfrastructure/Tree/FileDigests.h>
#include <VORNELInfrastructure/Undo/UndoRecording.h>

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
    TargetReasons unreadable = {};              ///< those that can't be read, with the reason
    QMap<TargetKind, std::string> drifted = {}; ///< those that differ, with the digests of their content
};

/// Per skill. A skill without findings has no entry.
using FoundCopies = QHash<QUuid, CopyFindings>;

/// How far a failure to read one skill reaches.
enum class FailureScope {
    Library, ///< an overview fails
    Skill    ///< a copy that can't be read makes its own skill `failed`; errors name the folder that they are
             ///< about
};

/// What every job of the service works on.
struct Workspace
{
    FileSystem &files;
    const Configuration &config;
    FailedSyncTargets &failedSyncTargets;
    FoundCopies &foundCopies;
    UndoRecording &changes; ///< what the present operation has changed
    FileDigests &digests;   ///< of the files that the skills' operations have read; an overview reads anew
    EntryTrees &entries;    ///< of histories that the present operation has read
    FailureScope failureScope = FailureScope::Library;
};

/// Refuses a root that is a link with `symlinkUnsupported`; a root that does not exist passes.
void refuseLinkedRoot(const FileSystem &files, const std::filesystem::path &root);

} // namespace vornel

#pragma once

#include "Workspace.h"

#include <QDateTime>
#include <QObject>

namespace vornel {

/// The content of "workspace.json".
struct WorkspaceMetadata
{
    Q_GADGET
    Q_PROPERTY(qint64 schemaVersion MEMBER schemaVersion)
    Q_PROPERTY(QUuid workspaceID MEMBER workspaceID)
    Q_PROPERTY(QString displayName MEMBER displayName)
    Q_PROPERTY(QDateTime createdAt MEMBER createdAt)
    Q_PROPERTY(qint64 resourceCopyThresholdBytes MEMBER resourceCopyThresholdBytes)

public:
    qint64 schemaVersion = 1;
    QUuid workspaceID;
    QString displayName;
    QDateTime createdAt;
    qint64 resourceCopyThresholdBytes = 0; ///< written for other readers; this program's limit is built in
};

/// Refuses roots that are links, and creates the missing folders of the workspace, unless it is that of a
/// newer version.
void createLayout(const Workspace &workspace);

/// Reads "workspace.json". Throws `integrityFailure` when it isn't what it should be.
WorkspaceMetadata readMetadata(const Workspace &workspace);

/// Throws `integrityFailure` in the workspace of a newer version, which may only be read.
void refuseNewerWorkspace(const Workspace &workspace);

/// Whether the workspace can be opened without a change.
bool isReady(const Workspace &workspace);

/// Puts right what a crash left, and writes the missing files of the workspace. `lock` is the exclusive lock
/// that the caller holds meanwhile. An existing "workspace.json" or catalog is only read and checked.
void prepareWorkspace(const Workspace &workspace, const Folder &lock);

} // namespace vornel

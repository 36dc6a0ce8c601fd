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
    qint64 resourceCopyThresholdBytes = 0; ///< kept for readers of the file; the tree's limit is built in
};

/// Refuses roots that are links, and creates the folders that the layout lacks, unless it is that of a newer
/// version.
void createLayout(const Workspace &workspace);

/// Reads "workspace.json". Throws `integrityFailure` when it isn't what it should be.
WorkspaceMetadata readMetadata(const Workspace &workspace);

/// Throws `integrityFailure` in the workspace of a newer version, which is only to be looked at.
void refuseNewerWorkspace(const Workspace &workspace);

/// Whether the workspace can be opened without a change.
bool isReady(const Workspace &workspace);

/// Puts right what a crash left, and writes the files that the workspace lacks, while `lock` keeps others
/// out. An existing "workspace.json" or catalog is only read and checked.
void prepareWorkspace(const Workspace &workspace, const Folder &lock);

} // namespace vornel

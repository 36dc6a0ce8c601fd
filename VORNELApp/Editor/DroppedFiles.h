#pragma once

#include <VORNELCore/Records/PathChange.h>

#include <QList>
#include <QUrl>

namespace vornel {

/// What was read of files and folders of this machine, or why it could not be.
struct DroppedFiles
{
    QList<WrittenFile> files = {}; ///< with paths below a skill's folder
    QStringList emptyFolders = {};
    QString failure = {}; ///< as the user reads it; empty where all was read
};

/// Reads files, and folders with all but what is hidden, to be copied into this folder of a skill.
/// Refuses links, what is no file, and more than a skill may hold. Slow: for a thread of its own.
DroppedFiles readDropped(const QList<QUrl> &urls, const QString &folder);

} // namespace vornel

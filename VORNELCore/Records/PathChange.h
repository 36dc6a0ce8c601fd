#pragma once

#include <QByteArray>
#include <QString>

#include <variant>

/// Changes of one file or folder of a skill. Paths are below its folder, joined by "/".
namespace vornel {

/// A file that is new, or replaced.
struct WrittenFile
{
    QString path;
    QByteArray bytes;
};

struct NewFolder
{
    QString path;
};

/// A file or folder at another path, where nothing stands.
struct MovedPath
{
    QString from;
    QString to;
};

/// A file, or a folder with all that it holds, which is deleted.
struct RemovedPath
{
    QString path;
};

using PathChange = std::variant<WrittenFile, NewFolder, MovedPath, RemovedPath>;

} // namespace vornel

#pragma once

#include <QString>

#include <functional>

/// Which paths the files and folders of a skill may have. Each throws what the user reads about one that may
/// not be.
namespace vornel::FilePathRules {

/// Throws `invalidPath` for a path out of the skill's folder, and `integrityFailure` for hidden names, those
/// of VORNEL's own files, empty ones and ones that no volume takes.
void requireUsable(const QString &path);

/// Throws `integrityFailure` for what is nested too deep.
void requireReachable(const QString &path, bool isFolder);

/// Throws `integrityFailure` for a path with a file on its way.
void requireFoldersAbove(const QString &path, const std::function<bool(const QString &)> &isFile);

/// Throws `integrityFailure` where what is moved would come to stand in itself.
void requireElsewhere(const QString &from, const QString &to);

} // namespace vornel::FilePathRules

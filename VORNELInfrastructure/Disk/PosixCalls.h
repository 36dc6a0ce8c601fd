#pragma once

#include "FileSystem.h"

#include <sys/stat.h>

/// What the calls of `PosixFileSystem` have in common.
namespace vornel::PosixCalls {

/// Throws `errno` as an error about `path`; `operation` is the system's word for what failed. A bad
/// descriptor is told as missing permission: it belongs to a folder that was opened only to pass through it.
[[noreturn]] void fail(const char *operation, const std::filesystem::path &path);

/// The same about an open file, by where it stands now.
[[noreturn]] void fail(const char *operation, const Descriptor &file);

std::string pathOf(const Folder &folder, const std::string &name);
std::string pathOf(const Place &place);

/// Throws `invalidPath(outsideRoot)` for a name that would lead elsewhere.
void refuseSeveralComponents(const std::string &name);

/// The status of the entry itself, where it is a link; nothing when nothing stands there.
std::optional<struct stat> statusOf(const Folder &folder, const std::string &name);

EntryStatus entryStatus(const struct stat &status);
FileKind kindOf(mode_t mode);
std::optional<FileKind> kindOf(const Folder &folder, const std::string &name);

} // namespace vornel::PosixCalls

#pragma once

#include "FileSystem.h"

#include <sys/stat.h>

/// System calls that name an entry of an open folder, with their errors as exceptions.
namespace vornel::PosixCalls {

/// Throws `errno` as a `filesystem_error` about `path`; `operation` is the system's word for what failed.
[[noreturn]] void fail(const char *operation, const std::filesystem::path &path);

/// Where an open file stands now, for messages; empty when the system doesn't tell.
std::filesystem::path placeOf(const Descriptor &descriptor);

/// The kind that the mode of a `stat` tells.
FileKind kindOf(mode_t mode);

/// What stands under `name`, without following a link; nothing when nothing does.
std::optional<FileKind> kindOf(const Folder &folder, const std::string &name);

/// When the entry was last moved or changed; nothing when nothing is there.
std::optional<QDateTime> changedAt(const Folder &folder, const std::string &name);

/// Opens an entry that is no link; throws `symlinkUnsupported` when it is one. A name is one component.
Descriptor open(const Folder &folder, const std::string &name, int flags);

/// Creates a file for writing with permissions 600, whatever the umask.
Descriptor create(const Folder &folder, const std::string &name);

/// Writes all the bytes.
void write(const Descriptor &file, QByteArrayView bytes, const std::filesystem::path &path);

/// A name that no other entry has, and that listings of skills pass over.
std::string temporaryName();

/// Makes the disk begin to write what is below a folder, without waiting.
void startWriting(const FileSystem &files, const Folder &folder);

/// Waits until what is below a folder, and the folder itself, is on the disk.
void awaitWritten(const FileSystem &files, const Folder &folder);

/// Removes an entry, and all that is below it.
void removeEntry(const FileSystem &files, const Folder &folder, const std::string &name);

/// Copies an entry and all that is below it, hidden entries, links (as links), permissions and times too.
/// Throws on a pipe, socket or device.
void copyEntry(const FileSystem &files, const Folder &from, const std::string &name, const Folder &to,
               const std::string &newName);

} // namespace vornel::PosixCalls

#pragma once

#include "FileSystem.h"

#include <functional>

/// Reading and writing whole files, step by step. Paths are absolute and must lie in one of the roots.
namespace vornel {

/// Hands the bytes of `file` to `sink`, up to the size that it had when it was opened.
void readWhole(const FileSystem &files, const File &file, const std::function<void(QByteArrayView)> &sink);

/// The bytes of a file of at most `limit` bytes; a larger one is a `filesystem_error`.
QByteArray readFile(const FileSystem &files, const Folder &folder, const std::string &name,
                    std::int64_t limit);
QByteArray readFile(const FileSystem &files, const std::filesystem::path &path, std::int64_t limit);

/// When what was written has to be on the disk: at once, or when the caller flushes it.
enum class Durability { Now, Later };

/// Creates or replaces a file (permissions 600): whoever reads it sees the old bytes or the new, whole; also
/// after a loss of power, where the durability is `Now`.
void replaceFile(FileSystem &files, const std::filesystem::path &path, QByteArrayView bytes,
                 Durability durability);

/// Opens `path`, created with the folders above it (permissions 700). Existing folders are kept as they are.
Folder createFolders(FileSystem &files, const std::filesystem::path &path, Durability durability);

/// A name that no other entry has, and that listings of skills pass over.
std::string temporaryName();

/// Puts the names in a folder on the disk, after entries were moved. What was moved is whole wherever a loss
/// of power would leave it, so a disk that fails here is no reason to fail.
void flushNames(FileSystem &files, const Folder &folder) noexcept;

} // namespace vornel

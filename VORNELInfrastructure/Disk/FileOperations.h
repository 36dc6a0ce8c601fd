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

/// Who flushes what is written: the call that writes it, or its caller, later.
enum class Durability { Now, Later };

/// Copies the bytes of a file to a place where nothing stands.
void copyFile(FileSystem &files, const File &source, const Place &to);

/// Creates or replaces a file (permissions 600) in one step: whoever reads it sees all the old bytes or all
/// the new ones; after a loss of power, too, where the durability is `Now`.
void replaceFile(FileSystem &files, const std::filesystem::path &path, QByteArrayView bytes,
                 Durability durability);

/// Opens `path`, created with the folders above it (permissions 700). Existing folders are kept as they are.
Folder createFolders(FileSystem &files, const std::filesystem::path &path, Durability durability);

/// A name that no other entry has, and that listings of skills pass over.
std::string temporaryName();

/// Flushes the names in a folder after entries were moved. A failure is passed over: what was moved is whole
/// at either place, wherever a loss of power would leave it.
void flushNames(FileSystem &files, const Folder &folder) noexcept;

} // namespace vornel

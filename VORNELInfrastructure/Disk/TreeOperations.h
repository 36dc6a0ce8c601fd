#pragma once

#include "FileSystem.h"

#include <chrono>
#include <span>

/// What is done with whole files and folders, all that is below them included. Paths are absolute and must
/// lie in one of the roots.
namespace vornel {

/// Moves a file or folder to a place where nothing stands, across volumes too, and flushes the names. Between
/// volumes it is copied to a temporary name first, in `staging` or else beside its new place, and flushed
/// there: a loss of power leaves it whole at one place or the other.
void moveTree(FileSystem &files, const std::filesystem::path &from, const std::filesystem::path &to,
              const Folder *staging = nullptr);

/// Moves a folder so that nothing stays shared between its files and any that stay: where it shares some, a
/// copy goes to the new place, and then the folder is removed. A copy that an earlier attempt has left there
/// does as well. Both are whole at every moment. `staging` is a folder of the same volume.
void moveApart(FileSystem &files, const std::filesystem::path &from, const std::filesystem::path &to,
               const std::filesystem::path &staging);

/// Copies a file or folder into a folder of another volume, with hidden entries, links (as links),
/// permissions and times, and flushes the copy. Returns its name there, a temporary one. Throws on a pipe,
/// socket or device.
std::string copyToVolume(FileSystem &files, const Place &from, const Folder &to);

/// Removes a file, a link, or a folder, however deep.
void removeTree(FileSystem &files, const std::filesystem::path &path);
void removeTree(FileSystem &files, const Place &place);

/// Whether a file in a folder, hidden or not, may have a name elsewhere too, through which it would change.
bool sharesFiles(const FileSystem &files, const Place &place);

/// Gives the files of a folder bytes of their own where they have names elsewhere too. One with more than
/// `limit` bytes goes instead: it is kept under its other name.
void unshare(FileSystem &files, const Folder &folder, std::int64_t limit);

/// What has to be waited for until it is on the disk: files, and folders, each after those in it.
struct Unflushed
{
    std::vector<std::filesystem::path> files;
    std::vector<std::filesystem::path> folders;
};

/// Whether a file was last written so long ago that the system has brought it to the disk since.
bool wasWrittenLongAgo(std::chrono::nanoseconds modified);

/// Flushes these.
void flush(FileSystem &files, const Unflushed &unflushed);

/// Flushes folders of one volume, with everything in them but files that were shared, and written long
/// before. The disk begins to write all of them before any is waited for; when they are many, their whole
/// volume is flushed at once, which is faster.
void flushTrees(FileSystem &files, std::span<const std::filesystem::path> folders);

} // namespace vornel

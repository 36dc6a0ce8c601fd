#pragma once

#include "FileSystem.h"

#include <span>

/// What is done with whole files and folders, all that is below them included. Paths are absolute and must
/// lie in one of the roots.
namespace vornel {

/// Moves a file or folder to a place where nothing stands, across volumes too. It is on the disk at its new
/// place before it leaves the old one. From another volume it is first copied to a temporary name, in
/// `staging` or, without one, beside its new place.
void moveTree(FileSystem &files, const std::filesystem::path &from, const std::filesystem::path &to,
              const Folder *staging = nullptr);

/// Copies a file or folder to another volume, beside the place that it is to take: hidden entries, links (as
/// links), permissions and times too. It is on the disk when this returns its temporary name there. Throws on
/// a pipe, socket or device.
std::string copyToVolume(FileSystem &files, const Place &from, const Folder &to);

/// Removes a file, a link, or a folder, however deep.
void removeTree(FileSystem &files, const std::filesystem::path &path);
void removeTree(FileSystem &files, const Place &place);

/// Puts folders of one volume on the disk, with everything in them. All are begun before any is waited for;
/// when they are many, their whole volume is waited for once.
void flushTrees(FileSystem &files, std::span<const std::filesystem::path> folders);

} // namespace vornel

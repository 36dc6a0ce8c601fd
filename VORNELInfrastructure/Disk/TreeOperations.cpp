#include "TreeOperations.h"

#include "BestEffort.h"
#include "FileOperations.h"
#include "LastFolder.h"

#include <algorithm>
#include <system_error>

namespace vornel {

namespace fs = std::filesystem;

namespace {

/// Empties a folder, but only so many levels down: every open level costs a descriptor. Deeper folders are
/// moved up to `top`, for another call. Returns whether there were any.
bool emptyFolder(FileSystem &files, const Folder &top, const Folder &folder, int level = 1)
{
    constexpr int deepestLevel = 100;
    bool hasLifted = false;
    for (const FolderEntry &entry : files.list(folder)) {
        if (entry.kind == FileKind::Directory && level == deepestLevel) {
            files.rename({folder, entry.name}, {top, temporaryName()}, RenameMode::ToFreePlace);
            hasLifted = true;
            continue;
        }
        if (entry.kind == FileKind::Directory)
            hasLifted |= emptyFolder(files, top, files.openFolder(folder, entry.name), level + 1);
        files.remove(folder, entry.name);
    }
    return hasLifted;
}

bool hasFurtherNames(const FileSystem &files, const Folder &folder, const std::string &name)
{
    const std::optional<EntryStatus> status = files.statusOf(folder, name);
    return status && status->names > 1;
}

/// Whether a file has only been given a further name, and is on the disk.
bool isOnDisk(const FileSystem &files, const Folder &folder, const std::string &name)
{
    const std::optional<EntryStatus> status = files.statusOf(folder, name);
    return status && status->names > 1 && wasWrittenLongAgo(status->modified);
}

/// Appends what may not be on the disk of a folder.
void collectUnflushed(const FileSystem &files, const Folder &folder, Unflushed &unflushed)
{
    for (const FolderEntry &entry : files.list(folder)) {
        if (entry.kind == FileKind::Directory)
            collectUnflushed(files, files.openFolder(folder, entry.name), unflushed);
        else if (entry.kind == FileKind::Regular && !isOnDisk(files, folder, entry.name))
            unflushed.files.push_back(fs::path(folder.path) / entry.name);
    }
    unflushed.folders.emplace_back(folder.path);
}

void copyEntry(FileSystem &files, const Place &from, const Place &to)
{
    const std::optional<FileKind> kind = files.kindAt(from.folder, from.name);
    if (kind == FileKind::SymbolicLink)
        return files.copyLink(from, to);
    if (kind == FileKind::Regular) {
        copyFile(files, files.openFile(from.folder, from.name), to);
    } else if (kind == FileKind::Directory) {
        const Folder inner = files.openFolder(from.folder, from.name);
        const Folder copy = files.createFolder(to.folder, to.name);
        for (const FolderEntry &entry : files.list(inner))
            copyEntry(files, {inner, entry.name}, {copy, entry.name});
    } else {
        throw fs::filesystem_error("copy", from.folder.path + '/' + from.name,
                                   std::make_error_code(std::errc::not_supported));
    }
    files.copyAttributes(from, to);
}

bool holdsFurtherNames(const FileSystem &files, const Folder &folder, int level = 1)
{
    constexpr int deepestLevel = 100;
    return level <= deepestLevel && std::ranges::any_of(files.list(folder), [&](const FolderEntry &entry) {
               bool isFound = false;
               bestEffort([&] {
                   if (entry.kind == FileKind::Directory)
                       isFound = holdsFurtherNames(files, files.openFolder(folder, entry.name), level + 1);
                   else if (entry.kind == FileKind::Regular)
                       isFound = hasFurtherNames(files, folder, entry.name);
               });
               return isFound;
           });
}

void unshareFile(FileSystem &files, const Place &place, std::int64_t limit)
{
    const File file = files.openFile(place.folder, place.name);
    if (file.size() > limit)
        return files.remove(place.folder, place.name);
    const Place copy{place.folder, temporaryName()};
    try {
        copyFile(files, file, copy);
        files.rename(copy, place, RenameMode::OntoFile);
    } catch (...) {
        bestEffort([&] { files.remove(copy.folder, copy.name); });
        throw;
    }
}

void flushEntry(FileSystem &files, const Place &place)
{
    const std::optional<FileKind> kind = files.kindAt(place.folder, place.name);
    if (kind == FileKind::Regular)
        files.flush(files.openFile(place.folder, place.name));
    else if (kind == FileKind::Directory)
        flushTrees(files, {{fs::path(place.folder.path) / place.name}});
}

/// Gives an entry a temporary name. Returns false where not even its name can be changed, as that of a folder
/// in the lower layer of an overlay.
bool renamedAside(FileSystem &files, const Place &entry, const Place &temporary)
try {
    files.rename(entry, temporary, RenameMode::ToFreePlace);
    return true;
} catch (const fs::filesystem_error &error) {
    if (error.code() != std::errc::cross_device_link)
        throw;
    return false;
}

/// At every moment the entry stands whole at the one place or the other.
void moveAcross(FileSystem &files, const Place &before, const Place &after, const Folder &staging)
{
    const Place copy{staging, copyToVolume(files, before, staging)};
    bool isInPlace = false;
    const Place aside{before.folder, temporaryName()};
    bool isAside = false;
    try {
        files.rename(copy, after, RenameMode::ToFreePlace);
        isInPlace = true;
        flushNames(files, after.folder);
        isAside = renamedAside(files, before, aside);
    } catch (...) {
        // A disk may have done what it reports as failed: then only the copy is left.
        bestEffort([&] {
            if (files.kindAt(before.folder, before.name))
                removeTree(files, isInPlace ? after : copy);
        });
        throw;
    }
    if (!isAside)
        return removeTree(files, before);
    flushNames(files, before.folder);
    bestEffort([&] { removeTree(files, aside); });
}

} // namespace

void moveTree(FileSystem &files, const fs::path &from, const fs::path &to, const Folder *staging)
{
    const Folder source = files.openFolder(from.parent_path());
    const Folder destination = files.openFolder(to.parent_path());
    const Place before{source, from.filename()};
    const Place after{destination, to.filename()};
    try {
        files.rename(before, after, RenameMode::ToFreePlace);
        flushNames(files, destination);
        flushNames(files, source);
    } catch (const fs::filesystem_error &error) {
        if (error.code() != std::errc::cross_device_link)
            throw;
        moveAcross(files, before, after, staging != nullptr ? *staging : destination);
    }
}

void moveApart(FileSystem &files, const fs::path &from, const fs::path &to, const fs::path &staging)
{
    const Folder origin = files.openFolder(from.parent_path());
    const Place source{origin, from.filename()};
    const Folder destination = files.openFolder(to.parent_path());
    const bool isThere = files.kindAt(destination, to.filename()).has_value();
    if (!isThere && !sharesFiles(files, source))
        return moveTree(files, from, to);
    if (!isThere) {
        const Folder aside = files.openFolder(staging);
        const Place copy{aside, copyToVolume(files, source, aside)};
        files.rename(copy, {destination, to.filename()}, RenameMode::ToFreePlace);
        flushNames(files, destination);
    }
    const fs::path condemned = staging / temporaryName();
    moveTree(files, from, condemned);
    removeTree(files, condemned);
}

void removeTree(FileSystem &files, const fs::path &path)
{
    removeTree(files, {files.openFolder(path.parent_path()), path.filename()});
}

void removeTree(FileSystem &files, const Place &place)
{
    bool isEmpty = files.kindAt(place.folder, place.name) != FileKind::Directory;
    while (!isEmpty) {
        const Folder top = files.openFolder(place.folder, place.name);
        isEmpty = !emptyFolder(files, top, top);
    }
    files.remove(place.folder, place.name);
}

bool sharesFiles(const FileSystem &files, const Place &place)
try {
    return files.kindAt(place.folder, place.name) == FileKind::Directory &&
           holdsFurtherNames(files, files.openFolder(place.folder, place.name));
} catch (const std::exception &) {
    return true; // to copy it is right in any case
}

void unshare(FileSystem &files, const Folder &folder, std::int64_t limit)
{
    for (const FolderEntry &entry : files.list(folder)) {
        if (entry.kind == FileKind::Directory)
            unshare(files, files.openFolder(folder, entry.name), limit);
        else if (entry.kind == FileKind::Regular && hasFurtherNames(files, folder, entry.name))
            unshareFile(files, {folder, entry.name}, limit);
    }
}

bool wasWrittenLongAgo(std::chrono::nanoseconds modified)
{
    constexpr std::chrono::minutes longAgo(5);
    const std::chrono::nanoseconds now = std::chrono::system_clock::now().time_since_epoch();
    return now - modified > longAgo;
}

void flush(FileSystem &files, const Unflushed &unflushed)
{
    LastFolder folders(files);
    const auto opened = [&](const fs::path &file) {
        const Place place = folders.placeAt(file);
        return files.openFile(place.folder, place.name);
    };
    for (const fs::path &file : unflushed.files)
        files.startWriting(opened(file));
    for (const fs::path &file : unflushed.files)
        files.flush(opened(file));
    for (const fs::path &folder : unflushed.folders)
        files.flush(files.openFolder(folder));
}

void flushTrees(FileSystem &files, std::span<const fs::path> folders)
{
    constexpr std::size_t many = 8;
    if (folders.size() >= many)
        return files.flushVolume(files.openFolder(folders.front()));
    Unflushed unflushed;
    for (const fs::path &folder : folders)
        collectUnflushed(files, files.openFolder(folder), unflushed);
    flush(files, unflushed);
}

std::string copyToVolume(FileSystem &files, const Place &from, const Folder &to)
{
    std::string name = temporaryName();
    try {
        copyEntry(files, from, {to, name});
        flushEntry(files, {to, name});
        return name;
    } catch (...) {
        bestEffort([&] { removeTree(files, {to, name}); });
        throw;
    }
}

} // namespace vornel

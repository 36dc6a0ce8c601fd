#include "PosixCalls.h"

#include <VORNELCore/SerializedForms.h>
#include <VORNELCore/VORNELWorkspaceError.h>

#include <QUuid>

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <system_error>

using namespace Qt::StringLiterals;

namespace vornel::PosixCalls {

namespace fs = std::filesystem;

namespace {

/// Of the entry itself, where it is a link; nothing when nothing is there.
std::optional<struct stat> statusOf(const Folder &folder, const std::string &name)
{
    struct stat status
    {};
    if (::fstatat(folder.descriptor.fd(), name.c_str(), &status, AT_SYMLINK_NOFOLLOW) == 0)
        return status;
    if (errno != ENOENT)
        fail("stat", folder.path + '/' + name);
    return std::nullopt;
}

} // namespace

void fail(const char *operation, const fs::path &path)
{
    throw fs::filesystem_error(operation, path, std::error_code(errno, std::system_category()));
}

fs::path placeOf(const Descriptor &descriptor)
{
    std::error_code unknown;
    return fs::read_symlink("/proc/self/fd/" + std::to_string(descriptor.fd()), unknown);
}

FileKind kindOf(mode_t mode)
{
    if (S_ISREG(mode))
        return FileKind::Regular;
    if (S_ISDIR(mode))
        return FileKind::Directory;
    return S_ISLNK(mode) ? FileKind::SymbolicLink : FileKind::Other;
}

std::optional<FileKind> kindOf(const Folder &folder, const std::string &name)
{
    const auto status = statusOf(folder, name);
    return status ? std::optional(kindOf(status->st_mode)) : std::nullopt;
}

std::optional<QDateTime> changedAt(const Folder &folder, const std::string &name)
{
    const auto status = statusOf(folder, name);
    return status ? std::optional(QDateTime::fromSecsSinceEpoch(status->st_ctim.tv_sec, Qt::UTC))
                  : std::nullopt;
}

Descriptor open(const Folder &folder, const std::string &name, int flags)
{
    if (name.empty() || name == "." || name == ".." || name.find('/') != std::string::npos)
        throw VORNELWorkspaceError::invalidPath(PathViolation::outsideRoot);
    Descriptor descriptor(
        ::openat(folder.descriptor.fd(), name.c_str(), flags | O_NOFOLLOW | O_CLOEXEC | O_NOCTTY));
    if (descriptor.fd() >= 0)
        return descriptor;
    const int error = errno;
    const std::optional<FileKind> kind =
        error == ELOOP || error == ENOTDIR ? kindOf(folder, name) : std::nullopt;
    // What was no folder a moment ago and is one now was a link, swapped back in between.
    if (kind == FileKind::SymbolicLink || kind == FileKind::Directory)
        throw VORNELWorkspaceError::symlinkUnsupported(pathText(folder.path + '/' + name));
    errno = error;
    fail("open", folder.path + '/' + name);
}

Descriptor create(const Folder &folder, const std::string &name)
{
    constexpr mode_t ownerReadWrite = 0600;
    Descriptor descriptor(::openat(folder.descriptor.fd(), name.c_str(),
                                   O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, ownerReadWrite));
    if (descriptor.fd() < 0 || ::fchmod(descriptor.fd(), ownerReadWrite) != 0)
        fail("create", folder.path + '/' + name);
    return descriptor;
}

void write(const Descriptor &file, QByteArrayView bytes, const fs::path &path)
{
    while (!bytes.isEmpty()) {
        const ssize_t count = ::write(file.fd(), bytes.data(), static_cast<size_t>(bytes.size()));
        if (count < 0 && errno != EINTR)
            fail("write", path);
        bytes = bytes.sliced(std::max<ssize_t>(count, 0));
    }
}

std::string temporaryName()
{
    return (u'.' + uuidText(QUuid::createUuid()) + u".tmp"_s).toStdString();
}

void startWriting(const FileSystem &files, const Folder &folder)
{
    for (const FolderEntry &entry : files.list(folder)) {
        if (entry.kind == FileKind::Directory)
            startWriting(files, files.openFolder(folder, entry.name));
        else if (entry.kind == FileKind::Regular)
            ::sync_file_range(files.openFile(folder, entry.name).descriptor.fd(), 0, 0,
                              SYNC_FILE_RANGE_WRITE);
    }
}

void awaitWritten(const FileSystem &files, const Folder &folder)
{
    for (const FolderEntry &entry : files.list(folder)) {
        if (entry.kind == FileKind::Directory)
            awaitWritten(files, files.openFolder(folder, entry.name));
        else if (entry.kind == FileKind::Regular &&
                 ::fsync(files.openFile(folder, entry.name).descriptor.fd()) != 0)
            fail("sync", folder.path + '/' + entry.name);
    }
    if (::fsync(folder.descriptor.fd()) != 0)
        fail("sync", folder.path);
}

namespace {

/// Empties a folder some levels deep. Folders below that are lifted to `top`, so that however deep a tree is,
/// few descriptors remove it. Returns whether any was lifted.
bool emptyFolder(const FileSystem &files, const Folder &top, const Folder &folder, int level = 1)
{
    constexpr int deepestLevel = 100;
    bool hasLifted = false;
    for (const FolderEntry &entry : files.list(folder)) {
        const int fd = folder.descriptor.fd();
        if (::unlinkat(fd, entry.name.c_str(), 0) == 0)
            continue;
        if (errno != EISDIR)
            fail("remove", folder.path + '/' + entry.name);
        if (level == deepestLevel) {
            if (::renameat(fd, entry.name.c_str(), top.descriptor.fd(), temporaryName().c_str()) != 0)
                fail("rename", folder.path + '/' + entry.name);
            hasLifted = true;
            continue;
        }
        hasLifted |= emptyFolder(files, top, files.openFolder(folder, entry.name), level + 1);
        if (::unlinkat(fd, entry.name.c_str(), AT_REMOVEDIR) != 0)
            fail("remove", folder.path + '/' + entry.name);
    }
    return hasLifted;
}

} // namespace

void removeEntry(const FileSystem &files, const Folder &folder, const std::string &name)
{
    if (::unlinkat(folder.descriptor.fd(), name.c_str(), 0) == 0)
        return;
    if (errno != EISDIR)
        fail("remove", folder.path + '/' + name);
    bool isEmpty = false;
    while (!isEmpty) {
        const Folder top = files.openFolder(folder, name);
        isEmpty = !emptyFolder(files, top, top);
    }
    if (::unlinkat(folder.descriptor.fd(), name.c_str(), AT_REMOVEDIR) != 0)
        fail("remove", folder.path + '/' + name);
}

namespace {

void copyLink(const Folder &from, const std::string &name, const Folder &to, const std::string &newName)
{
    std::array<char, PATH_MAX> target{};
    if (::readlinkat(from.descriptor.fd(), name.c_str(), target.data(), target.size() - 1) < 0)
        fail("readlink", from.path + '/' + name);
    if (::symlinkat(target.data(), to.descriptor.fd(), newName.c_str()) != 0)
        fail("symlink", to.path + '/' + newName);
}

/// Gives a copy the permissions and times of its source, and puts it on the disk.
void finishCopy(const Descriptor &source, const Descriptor &copy, const fs::path &path)
{
    struct stat status
    {};
    if (::fstat(source.fd(), &status) != 0 || ::fchmod(copy.fd(), status.st_mode) != 0)
        fail("chmod", path);
    const std::array<timespec, 2> times{status.st_atim, status.st_mtim};
    if (::futimens(copy.fd(), times.data()) != 0 || ::fsync(copy.fd()) != 0)
        fail("sync", path);
}

void copyFile(const FileSystem &files, const File &source, const Folder &to, const std::string &newName)
{
    const Descriptor copy = create(to, newName);
    const fs::path path = to.path + '/' + newName;
    readWhole(files, source, [&](QByteArrayView bytes) { write(copy, bytes, path); });
    finishCopy(source.descriptor, copy, path);
}

} // namespace

void copyEntry(const FileSystem &files, const Folder &from, const std::string &name, const Folder &to,
               const std::string &newName)
{
    const std::optional<FileKind> kind = kindOf(from, name);
    if (kind == FileKind::SymbolicLink)
        return copyLink(from, name, to, newName);
    if (kind == FileKind::Regular)
        return copyFile(files, files.openFile(from, name), to, newName);
    if (kind != FileKind::Directory)
        throw fs::filesystem_error("copy", from.path + '/' + name,
                                   std::make_error_code(std::errc::not_supported));

    if (::mkdirat(to.descriptor.fd(), newName.c_str(), S_IRWXU) != 0)
        fail("mkdir", to.path + '/' + newName);
    const Folder inner = files.openFolder(from, name);
    const Folder copy = files.openFolder(to, newName);
    for (const FolderEntry &entry : files.list(inner))
        copyEntry(files, inner, entry.name, copy, entry.name);
    finishCopy(inner.descriptor, copy.descriptor, copy.path);
}

} // namespace vornel::PosixCalls

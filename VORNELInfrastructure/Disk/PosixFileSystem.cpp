#include "PosixFileSystem.h"

#include <VORNELCore/Errors/VORNELWorkspaceError.h>
#include <VORNELCore/Records/SerializedForms.h>

#include <dirent.h>
#include <fcntl.h>
#include <linux/openat2.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <cstring>
#include <system_error>
#include <thread>

using namespace Qt::StringLiterals;

namespace vornel {

namespace fs = std::filesystem;
using Clock = std::chrono::steady_clock;

namespace {

constexpr mode_t ownerOnly = 0700;
constexpr mode_t ownerReadWrite = 0600;

/// Throws `errno` as an error about `path`; `operation` is the system's word for what failed. A folder that
/// was opened only to pass through it calls itself a bad descriptor.
[[noreturn]] void fail(const char *operation, const fs::path &path)
{
    const int error = errno == EBADF ? EACCES : errno;
    throw fs::filesystem_error(operation, path, std::error_code(error, std::system_category()));
}

/// The same about an open file, by where it stands now.
[[noreturn]] void fail(const char *operation, const Descriptor &file)
{
    const std::error_code error(errno, std::system_category());
    std::error_code unknown;
    const fs::path path = fs::read_symlink("/proc/self/fd/" + std::to_string(file.fd()), unknown);
    throw fs::filesystem_error(operation, path, error);
}

std::string pathOf(const Folder &folder, const std::string &name)
{
    return folder.path + '/' + name;
}

std::string pathOf(const Place &place)
{
    return pathOf(place.folder, place.name);
}

void refuseSeveralComponents(const std::string &name)
{
    if (name.empty() || name == "." || name == ".." || name.find('/') != std::string::npos)
        throw VORNELWorkspaceError::invalidPath(PathViolation::outsideRoot);
}

FileKind kindOf(mode_t mode)
{
    if (S_ISREG(mode))
        return FileKind::Regular;
    if (S_ISDIR(mode))
        return FileKind::Directory;
    return S_ISLNK(mode) ? FileKind::SymbolicLink : FileKind::Other;
}

/// Of the entry itself, where it is a link; nothing when nothing is there.
std::optional<struct stat> statusOf(const Folder &folder, const std::string &name)
{
    struct stat status
    {};
    if (::fstatat(folder.descriptor.fd(), name.c_str(), &status, AT_SYMLINK_NOFOLLOW) == 0)
        return status;
    if (errno != ENOENT)
        fail("stat", pathOf(folder, name));
    return std::nullopt;
}

std::optional<FileKind> kindOf(const Folder &folder, const std::string &name)
{
    const auto status = statusOf(folder, name);
    return status ? std::optional(kindOf(status->st_mode)) : std::nullopt;
}

FileKind kindOf(const Folder &folder, const dirent64 &entry)
{
    switch (entry.d_type) {
    case DT_REG:
        return FileKind::Regular;
    case DT_DIR:
        return FileKind::Directory;
    case DT_LNK:
        return FileKind::SymbolicLink;
    case DT_UNKNOWN:
        return kindOf(folder, entry.d_name).value_or(FileKind::Other);
    default:
        return FileKind::Other;
    }
}

/// Opens an entry that is no link; throws `symlinkUnsupported` when it is one.
Descriptor open(const Folder &folder, const std::string &name, int flags)
{
    refuseSeveralComponents(name);
    Descriptor descriptor(
        ::openat(folder.descriptor.fd(), name.c_str(), flags | O_NOFOLLOW | O_CLOEXEC | O_NOCTTY));
    if (descriptor.fd() >= 0)
        return descriptor;
    const int error = errno;
    const std::optional<FileKind> kind =
        error == ELOOP || error == ENOTDIR ? kindOf(folder, name) : std::nullopt;
    // What was no folder a moment ago and is one now was a link, swapped back in between.
    if (kind == FileKind::SymbolicLink || kind == FileKind::Directory)
        throw VORNELWorkspaceError::symlinkUnsupported(pathText(pathOf(folder, name)));
    errno = error;
    fail("open", pathOf(folder, name));
}

/// Of an entry that is no link, whatever the umask.
void setPermissions(const Place &place, mode_t mode)
{
    if (::fchmodat(place.folder.descriptor.fd(), place.name.c_str(), mode, AT_SYMLINK_NOFOLLOW) != 0)
        fail("chmod", pathOf(place));
}

/// Renames with a mode that not every volume knows. Returns whether this one does, with `errno` of the
/// rename.
bool renamedWith(unsigned int flag, const Place &from, const Place &to, int &result)
{
    result = ::renameat2(from.folder.descriptor.fd(), from.name.c_str(), to.folder.descriptor.fd(),
                         to.name.c_str(), flag);
    return result == 0 || (errno != EINVAL && errno != ENOSYS);
}

int renameOnto(const Place &from, const Place &to)
{
    return ::renameat(from.folder.descriptor.fd(), from.name.c_str(), to.folder.descriptor.fd(),
                      to.name.c_str());
}

int renameToFreePlace(const Place &from, const Place &to)
{
    int result = 0;
    if (renamedWith(RENAME_NOREPLACE, from, to, result))
        return result;
    if (kindOf(to.folder, to.name)) {
        errno = EEXIST;
        return -1;
    }
    return renameOnto(from, to);
}

int exchange(const Place &from, const Place &to)
{
    int result = 0;
    if (!renamedWith(RENAME_EXCHANGE, from, to, result))
        errno = EOPNOTSUPP;
    return result;
}

/// Makes a call again that a signal has interrupted.
int uninterrupted(int (*call)(int), const Descriptor &descriptor)
{
    int result = call(descriptor.fd());
    while (result != 0 && errno == EINTR)
        result = call(descriptor.fd());
    return result;
}

void awaitLock(const Folder &folder, LockMode mode, Clock::time_point deadline)
{
    constexpr std::chrono::milliseconds pause{5};
    const int operation = (mode == LockMode::Shared ? LOCK_SH : LOCK_EX) | LOCK_NB;
    while (::flock(folder.descriptor.fd(), operation) != 0) {
        if (errno != EWOULDBLOCK && errno != EINTR)
            fail("lock", folder.path);
        if (Clock::now() >= deadline)
            throw VORNELWorkspaceError::integrityFailure(
                u"Le workspace est occupé par un autre programme."_s);
        std::this_thread::sleep_for(pause);
    }
}

} // namespace

fs::path PosixFileSystem::resolved(const fs::path &path) const
{
    return fs::weakly_canonical(path);
}

Folder PosixFileSystem::openAbove(const fs::path &path) const
{
    int fd = ::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (fd < 0 && errno == EACCES) // one may pass through a folder that one may not list
        fd = ::open(path.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC);
    if (fd < 0)
        fail("open", path);
    return {Descriptor(fd), path == "/" ? std::string() : path.native()};
}

Folder PosixFileSystem::openFolder(const Folder &parent, const std::string &name) const
try {
    return {open(parent, name, O_RDONLY | O_DIRECTORY), pathOf(parent, name)};
} catch (const fs::filesystem_error &error) {
    if (error.code() != std::errc::permission_denied)
        throw;
    return {open(parent, name, O_PATH | O_DIRECTORY), pathOf(parent, name)};
}

Folder PosixFileSystem::openBelow(const Folder &top, const fs::path &path) const
{
    // Where the kernel knows how to follow no link, one call does; what goes wrong is told step by step.
    open_how how{};
    how.flags = O_RDONLY | O_DIRECTORY | O_CLOEXEC;
    how.resolve = RESOLVE_BENEATH | RESOLVE_NO_SYMLINKS;
    const long fd = ::syscall(SYS_openat2, top.descriptor.fd(), path.c_str(), &how, sizeof how);
    if (fd >= 0)
        return {Descriptor(static_cast<int>(fd)), pathOf(top, path)};

    auto name = path.begin();
    Folder folder = openFolder(top, *name);
    for (++name; name != path.end(); ++name)
        folder = openFolder(folder, *name);
    return folder;
}

std::optional<FileKind> PosixFileSystem::kindAt(const Folder &folder, const std::string &name) const
{
    return kindOf(folder, name);
}

bool PosixFileSystem::isAt(const Folder &folder, const Place &place) const
{
    struct stat self
    {};
    if (::fstat(folder.descriptor.fd(), &self) != 0)
        fail("stat", folder.path);
    const auto there = statusOf(place.folder, place.name);
    return there && there->st_dev == self.st_dev && there->st_ino == self.st_ino;
}

std::optional<QDateTime> PosixFileSystem::changedAt(const Folder &folder, const std::string &name) const
{
    const auto status = statusOf(folder, name);
    return status ? std::optional(QDateTime::fromSecsSinceEpoch(status->st_ctim.tv_sec, Qt::UTC))
                  : std::nullopt;
}

std::vector<FolderEntry> PosixFileSystem::list(const Folder &folder) const
{
    std::vector<FolderEntry> entries;
    alignas(dirent64) std::array<char, 32UL * 1024> buffer;
    const int fd = folder.descriptor.fd();
    while (true) {
        const ssize_t size = ::getdents64(fd, buffer.data(), buffer.size());
        if (size < 0)
            fail("list", folder.path);
        if (size == 0)
            return entries;
        for (ssize_t at = 0; at < size;) {
            const auto *entry = reinterpret_cast<const dirent64 *>(buffer.data() + at);
            at += entry->d_reclen;
            if (std::strcmp(entry->d_name, ".") != 0 && std::strcmp(entry->d_name, "..") != 0)
                entries.push_back({entry->d_name, kindOf(folder, *entry)});
        }
    }
}

File PosixFileSystem::openFile(const Folder &folder, const std::string &name) const
{
    Descriptor descriptor = open(folder, name, O_RDONLY | O_NONBLOCK);
    struct stat status
    {};
    if (::fstat(descriptor.fd(), &status) != 0)
        fail("stat", pathOf(folder, name));
    if (!S_ISREG(status.st_mode))
        throw fs::filesystem_error("open", pathOf(folder, name),
                                   std::make_error_code(std::errc::not_supported));
    return {std::move(descriptor), status.st_size};
}

std::size_t PosixFileSystem::read(const File &file, std::int64_t offset, std::span<char> buffer) const
{
    while (true) {
        const ssize_t count = ::pread(file.descriptor.fd(), buffer.data(), buffer.size(), offset);
        if (count >= 0)
            return static_cast<std::size_t>(count);
        if (errno != EINTR)
            fail("read", file.descriptor);
    }
}

Folder PosixFileSystem::createFolder(const Folder &parent, const std::string &name)
{
    refuseSeveralComponents(name);
    if (::mkdirat(parent.descriptor.fd(), name.c_str(), ownerOnly) != 0)
        fail("mkdir", pathOf(parent, name));
    try {
        Folder folder = openFolder(parent, name);
        if (::fchmod(folder.descriptor.fd(), ownerOnly) != 0)
            fail("chmod", folder.path);
        return folder;
    } catch (...) {
        ::unlinkat(parent.descriptor.fd(), name.c_str(), AT_REMOVEDIR);
        throw;
    }
}

File PosixFileSystem::createFile(const Folder &folder, const std::string &name)
{
    refuseSeveralComponents(name);
    Descriptor descriptor(::openat(folder.descriptor.fd(), name.c_str(),
                                   O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, ownerReadWrite));
    if (descriptor.fd() < 0 || ::fchmod(descriptor.fd(), ownerReadWrite) != 0)
        fail("create", pathOf(folder, name));
    return {std::move(descriptor), 0};
}

void PosixFileSystem::write(const File &file, QByteArrayView bytes)
{
    while (!bytes.isEmpty()) {
        const ssize_t count =
            ::write(file.descriptor.fd(), bytes.data(), static_cast<std::size_t>(bytes.size()));
        if (count < 0 && errno != EINTR)
            fail("write", file.descriptor);
        bytes = bytes.sliced(std::max<ssize_t>(count, 0));
    }
}

void PosixFileSystem::rename(const Place &from, const Place &to, RenameMode mode)
{
    refuseSeveralComponents(from.name);
    refuseSeveralComponents(to.name);
    int result = 0;
    if (mode == RenameMode::Exchange)
        result = exchange(from, to);
    else
        result = mode == RenameMode::OntoFile ? renameOnto(from, to) : renameToFreePlace(from, to);
    if (result != 0)
        fail("rename", errno == EEXIST || errno == ENOTEMPTY ? pathOf(to) : pathOf(from));
}

void PosixFileSystem::remove(const Folder &folder, const std::string &name)
{
    refuseSeveralComponents(name);
    const int fd = folder.descriptor.fd();
    if (::unlinkat(fd, name.c_str(), 0) == 0)
        return;
    if (errno != EISDIR || ::unlinkat(fd, name.c_str(), AT_REMOVEDIR) != 0)
        fail("remove", pathOf(folder, name));
}

void PosixFileSystem::copyLink(const Place &from, const Place &to)
{
    std::array<char, PATH_MAX> target{};
    if (::readlinkat(from.folder.descriptor.fd(), from.name.c_str(), target.data(), target.size() - 1) < 0)
        fail("readlink", pathOf(from));
    if (::symlinkat(target.data(), to.folder.descriptor.fd(), to.name.c_str()) != 0)
        fail("symlink", pathOf(to));
}

void PosixFileSystem::copyAttributes(const Place &from, const Place &to)
{
    const auto status = statusOf(from.folder, from.name);
    if (!status)
        throw fs::filesystem_error("stat", pathOf(from),
                                   std::make_error_code(std::errc::no_such_file_or_directory));
    setPermissions(to, status->st_mode & 07777);
    const std::array<timespec, 2> times{status->st_atim, status->st_mtim};
    if (::utimensat(to.folder.descriptor.fd(), to.name.c_str(), times.data(), AT_SYMLINK_NOFOLLOW) != 0)
        fail("utimens", pathOf(to));
}

void PosixFileSystem::startWriting(const File &file)
{
    ::sync_file_range(file.descriptor.fd(), 0, 0, SYNC_FILE_RANGE_WRITE);
}

void PosixFileSystem::flush(const File &file)
{
    if (uninterrupted(::fsync, file.descriptor) != 0)
        fail("sync", file.descriptor);
}

void PosixFileSystem::flush(const Folder &folder)
{
    if (uninterrupted(::fsync, folder.descriptor) != 0 && errno != EINVAL && errno != EBADF && errno != EROFS)
        fail("sync", folder.path);
}

void PosixFileSystem::flushVolume(const Folder &folder)
{
    if (uninterrupted(::syncfs, folder.descriptor) != 0)
        fail("sync", folder.path);
}

Folder PosixFileSystem::lock(const fs::path &folder, LockMode mode) const
{
    constexpr std::chrono::seconds longestWait{10};
    const auto deadline = Clock::now() + longestWait;
    // Whoever waits holds a lock on the folder above: a waiting writer so keeps out the readers who come
    // later. Otherwise readers whose locks overlap could keep the writer out for ever.
    const Folder above = FileSystem::openFolder(folder.parent_path());
    awaitLock(above, mode, deadline);
    Folder locked = FileSystem::openFolder(folder);
    awaitLock(locked, mode, deadline);
    return locked;
}

} // namespace vornel

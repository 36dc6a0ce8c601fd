/// The calls of `PosixFileSystem` that change something on the disk, or flush it.

#include "PosixCalls.h"
#include "PosixFileSystem.h"

#include <fcntl.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <system_error>

namespace vornel {

namespace fs = std::filesystem;
using namespace PosixCalls;

namespace {

constexpr mode_t ownerOnly = 0700;
constexpr mode_t ownerReadWrite = 0600;

/// Sets the permissions of an entry that is no link.
void setPermissions(const Place &place, mode_t mode)
{
    if (::fchmodat(place.folder.descriptor.fd(), place.name.c_str(), mode, AT_SYMLINK_NOFOLLOW) != 0)
        fail("chmod", pathOf(place));
}

/// Renames with a flag that not every volume knows. Returns whether this one does; `result` and `errno` are
/// those of the rename.
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

/// Makes a call, again when a signal has interrupted it.
int uninterrupted(int (*call)(int), const Descriptor &descriptor)
{
    int result = call(descriptor.fd());
    while (result != 0 && errno == EINTR)
        result = call(descriptor.fd());
    return result;
}

} // namespace

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
    return {std::move(descriptor)};
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

EntryStatus PosixFileSystem::share(const Place &from, const Place &to)
{
    refuseSeveralComponents(from.name);
    refuseSeveralComponents(to.name);
    const bool isThere = isCloned(from, to) || ::linkat(from.folder.descriptor.fd(), from.name.c_str(),
                                                        to.folder.descriptor.fd(), to.name.c_str(), 0) == 0;
    if (!isThere)
        fail("link", pathOf(to));
    const auto status = PosixCalls::statusOf(to.folder, to.name);
    if (status && S_ISREG(status->st_mode))
        return entryStatus(*status);
    PosixFileSystem::remove(to.folder, to.name); // what stood there has become a link, say
    errno = EINVAL;
    fail("link", pathOf(from));
}

/// A part of one step: what overrides the steps has no part in it.
bool PosixFileSystem::isCloned(const Place &from, const Place &to)
{
    struct stat folder
    {};
    if (::fstat(to.folder.descriptor.fd(), &folder) != 0 || folder.st_dev == m_withoutClones)
        return false;
    const File source = PosixFileSystem::openFile(from.folder, from.name);
    const File clone = PosixFileSystem::createFile(to.folder, to.name);
    if (::ioctl(clone.descriptor.fd(), FICLONE, source.descriptor.fd()) == 0)
        return true;
    if (errno != EXDEV)
        m_withoutClones = folder.st_dev;
    PosixFileSystem::remove(to.folder, to.name);
    return false;
}

void PosixFileSystem::copyAttributes(const Place &from, const Place &to)
{
    const auto status = PosixCalls::statusOf(from.folder, from.name);
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

} // namespace vornel

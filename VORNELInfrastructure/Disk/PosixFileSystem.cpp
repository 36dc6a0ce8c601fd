#include "PosixFileSystem.h"

#include "PosixCalls.h"

#include <VORNELCore/Errors/VORNELWorkspaceError.h>
#include <VORNELCore/Records/SerializedForms.h>

#include <dirent.h>
#include <fcntl.h>
#include <linux/openat2.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstring>
#include <system_error>

namespace vornel {

namespace fs = std::filesystem;
using namespace PosixCalls;

namespace {

FileKind kindOfEntry(const Folder &folder, const dirent64 &entry)
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
    // A folder here was a link when it was opened, and has been replaced since.
    if (kind == FileKind::SymbolicLink || kind == FileKind::Directory)
        throw VORNELWorkspaceError::symlinkUnsupported(pathText(pathOf(folder, name)));
    errno = error;
    fail("open", pathOf(folder, name));
}

/// Opens a file that is neither folder, pipe nor device; none of these is waited for.
File openRegular(const Folder &folder, const std::string &name, int access)
{
    Descriptor descriptor = open(folder, name, access | O_NONBLOCK);
    struct stat status
    {};
    if (::fstat(descriptor.fd(), &status) != 0)
        fail("stat", pathOf(folder, name));
    if (!S_ISREG(status.st_mode))
        throw fs::filesystem_error("open", pathOf(folder, name),
                                   std::make_error_code(std::errc::not_supported));
    return {std::move(descriptor), entryStatus(status)};
}

} // namespace

fs::path PosixFileSystem::resolved(const fs::path &path) const
{
    return fs::weakly_canonical(path);
}

Folder PosixFileSystem::openAbove(const fs::path &path) const
{
    int fd = ::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (fd < 0 && errno == EACCES) // a folder that may not be listed may still be passed through
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
    // One call where the kernel can be told to follow no link. When it fails, the steps below tell why.
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
    const auto there = PosixCalls::statusOf(place.folder, place.name);
    return there && there->st_dev == self.st_dev && there->st_ino == self.st_ino;
}

std::optional<QDateTime> PosixFileSystem::changedAt(const Folder &folder, const std::string &name) const
{
    const auto status = PosixCalls::statusOf(folder, name);
    return status ? std::optional(QDateTime::fromSecsSinceEpoch(status->st_ctim.tv_sec, Qt::UTC))
                  : std::nullopt;
}

std::optional<EntryStatus> PosixFileSystem::statusOf(const Folder &folder, const std::string &name) const
{
    const auto status = PosixCalls::statusOf(folder, name);
    return status ? std::optional(entryStatus(*status)) : std::nullopt;
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
                entries.push_back({entry->d_name, kindOfEntry(folder, *entry)});
        }
    }
}

File PosixFileSystem::openFile(const Folder &folder, const std::string &name) const
{
    return openRegular(folder, name, O_RDONLY);
}

std::shared_ptr<QFile> PosixFileSystem::openForOthers(const Folder &folder, const std::string &name) const
{
    const auto opened = [&](int access, QIODevice::OpenMode mode) {
        auto file = std::make_shared<QFile>();
        file->open(openRegular(folder, name, access).descriptor.release(), mode, QFile::AutoCloseHandle);
        return file;
    };
    try {
        return opened(O_RDWR, QIODevice::ReadWrite);
    } catch (const fs::filesystem_error &) { // what may not be written may perhaps be read
        return opened(O_RDONLY, QIODevice::ReadOnly);
    }
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

} // namespace vornel

#include "PosixCalls.h"

#include <VORNELCore/Errors/VORNELWorkspaceError.h>

#include <fcntl.h>

#include <cerrno>
#include <system_error>

namespace vornel::PosixCalls {

namespace fs = std::filesystem;

namespace {

std::chrono::nanoseconds sinceEpoch(const timespec &time)
{
    return std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec);
}

} // namespace

FileKind kindOf(mode_t mode)
{
    if (S_ISREG(mode))
        return FileKind::Regular;
    if (S_ISDIR(mode))
        return FileKind::Directory;
    return S_ISLNK(mode) ? FileKind::SymbolicLink : FileKind::Other;
}

void fail(const char *operation, const fs::path &path)
{
    const int error = errno == EBADF ? EACCES : errno;
    throw fs::filesystem_error(operation, path, std::error_code(error, std::system_category()));
}

void fail(const char *operation, const Descriptor &file)
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

EntryStatus entryStatus(const struct stat &status)
{
    constexpr std::int64_t block = 512; // in which st_blocks counts, whatever those of the volume
    return {.kind = kindOf(status.st_mode),
            .volume = status.st_dev,
            .number = status.st_ino,
            .names = status.st_nlink,
            .size = status.st_size,
            .room = status.st_blocks * block,
            .modified = sinceEpoch(status.st_mtim),
            .changed = sinceEpoch(status.st_ctim)};
}

} // namespace vornel::PosixCalls

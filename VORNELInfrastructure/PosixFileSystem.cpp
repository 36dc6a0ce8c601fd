#include "PosixFileSystem.h"

#include "PosixCalls.h"

#include <VORNELCore/SerializedForms.h>
#include <VORNELCore/VORNELWorkspaceError.h>

#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <cstring>
#include <ranges>
#include <string_view>
#include <thread>

using namespace Qt::StringLiterals;

namespace vornel {

namespace fs = std::filesystem;
using namespace PosixCalls;
using Clock = std::chrono::steady_clock;

namespace {

constexpr mode_t ownerOnly = 0700;

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
        return PosixCalls::kindOf(folder, entry.d_name).value_or(FileKind::Other);
    default:
        return FileKind::Other;
    }
}

Folder openRoot(const fs::path &root)
{
    Descriptor descriptor(::open(root.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
    if (descriptor.fd() >= 0)
        return {std::move(descriptor), root.native()};
    const int error = errno;
    struct stat status
    {};
    if (::lstat(root.c_str(), &status) == 0 && S_ISLNK(status.st_mode))
        throw VORNELWorkspaceError::symlinkUnsupported(pathText(root));
    errno = error;
    fail("open", root);
}

/// The names of the folders that lead from `root` to `path`.
std::vector<std::string> componentsBelow(const fs::path &root, const fs::path &path)
{
    std::vector<std::string> names;
    for (const auto component :
         std::views::split(std::string_view(path.native()).substr(root.native().size()), '/')) {
        if (!component.empty())
            names.emplace_back(component.begin(), component.end());
    }
    return names;
}

/// Creates a root with the folders above it; links above it are followed, as they are the user's own.
void createRoot(const fs::path &root)
{
    if (fs::is_directory(root))
        return;
    if (root.has_relative_path())
        createRoot(root.parent_path());
    if (::mkdir(root.c_str(), ownerOnly) == 0) {
        if (::chmod(root.c_str(), ownerOnly) != 0)
            fail("chmod", root);
    } else if (errno != EEXIST) {
        fail("mkdir", root);
    } else if (!fs::is_directory(root)) {
        errno = ENOTDIR; // which tells more than that something is there
        fail("mkdir", root);
    }
}

/// Puts the names in a folder on the disk. A name that gets lost with the power changes nothing that is
/// whole, so a disk that can't do this is no reason to fail.
void flushNames(const Folder &folder)
{
    ::fsync(folder.descriptor.fd());
}

/// Renames without ever replacing what may stand at the new place. Returns false with `errno` set.
bool renameToFreePlace(const Folder &from, const std::string &name, const Folder &to,
                       const std::string &newName)
{
    if (::renameat2(from.descriptor.fd(), name.c_str(), to.descriptor.fd(), newName.c_str(),
                    RENAME_NOREPLACE) == 0)
        return true;
    if (errno != EINVAL && errno != ENOSYS)
        return false;
    if (PosixCalls::kindOf(to, newName)) {
        errno = EEXIST;
        return false;
    }
    return ::renameat(from.descriptor.fd(), name.c_str(), to.descriptor.fd(), newName.c_str()) == 0;
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

void PosixFileSystem::confine(std::vector<fs::path> roots)
{
    m_roots = std::move(roots);
}

const fs::path &PosixFileSystem::rootOf(const fs::path &path) const
{
    const auto contains = [&path](const fs::path &root) {
        const std::string_view text = path.native();
        const std::string_view top = root.native();
        return text.starts_with(top) && (text.size() == top.size() || text[top.size()] == '/' || top == "/");
    };
    const auto root = std::ranges::find_if(m_roots, contains);
    if (root == m_roots.end())
        throw VORNELWorkspaceError::invalidPath(PathViolation::outsideRoot);
    return *root;
}

std::optional<FileKind> PosixFileSystem::kindAt(const fs::path &path) const
try {
    if (path != rootOf(path))
        return kindAt(openFolder(path.parent_path()), path.filename().native());
    struct stat status
    {};
    if (::lstat(path.c_str(), &status) != 0)
        fail("stat", path);
    return PosixCalls::kindOf(status.st_mode);
} catch (const fs::filesystem_error &error) {
    if (error.code() == std::errc::no_such_file_or_directory || error.code() == std::errc::not_a_directory)
        return std::nullopt;
    throw;
}

std::optional<FileKind> PosixFileSystem::kindAt(const Folder &folder, const std::string &name) const
{
    return PosixCalls::kindOf(folder, name);
}

std::optional<QDateTime> PosixFileSystem::changedAt(const Folder &folder, const std::string &name) const
{
    return PosixCalls::changedAt(folder, name);
}

Folder PosixFileSystem::openFolder(const fs::path &path) const
{
    const fs::path &root = rootOf(path);
    Folder folder = openRoot(root);
    for (const std::string &component : componentsBelow(root, path))
        folder = openFolder(folder, component);
    return folder;
}

Folder PosixFileSystem::openFolder(const Folder &parent, const std::string &name) const
{
    return {PosixCalls::open(parent, name, O_RDONLY | O_DIRECTORY), parent.path + '/' + name};
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
    Descriptor descriptor = PosixCalls::open(folder, name, O_RDONLY | O_NONBLOCK);
    struct stat status
    {};
    if (::fstat(descriptor.fd(), &status) != 0)
        fail("stat", folder.path + '/' + name);
    if (!S_ISREG(status.st_mode))
        throw fs::filesystem_error("open", folder.path + '/' + name,
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
            fail("read", placeOf(file.descriptor));
    }
}

Folder PosixFileSystem::createFolder(const Folder &parent, const std::string &name)
{
    if (::mkdirat(parent.descriptor.fd(), name.c_str(), ownerOnly) != 0)
        fail("mkdir", parent.path + '/' + name);
    try {
        if (::fchmodat(parent.descriptor.fd(), name.c_str(), ownerOnly, AT_SYMLINK_NOFOLLOW) != 0 &&
            errno != ENOTSUP)
            fail("chmod", parent.path + '/' + name);
        return openFolder(parent, name);
    } catch (...) {
        ::unlinkat(parent.descriptor.fd(), name.c_str(), AT_REMOVEDIR);
        throw;
    }
}

void PosixFileSystem::createFolders(const fs::path &path)
{
    const fs::path &root = rootOf(path);
    createRoot(root);
    Folder folder = openRoot(root);
    for (const std::string &name : componentsBelow(root, path))
        folder = PosixCalls::kindOf(folder, name) ? openFolder(folder, name) : createFolder(folder, name);
}

void PosixFileSystem::createFile(const Folder &folder, const std::string &name, QByteArrayView bytes)
{
    PosixCalls::write(PosixCalls::create(folder, name), bytes, folder.path + '/' + name);
}

void PosixFileSystem::replaceFile(const fs::path &path, QByteArrayView bytes)
{
    const Folder folder = openFolder(path.parent_path());
    const std::string temporary = temporaryName();
    try {
        const Descriptor file = PosixCalls::create(folder, temporary);
        PosixCalls::write(file, bytes, path);
        if (::fsync(file.fd()) != 0)
            fail("sync", path);
        if (::renameat(folder.descriptor.fd(), temporary.c_str(), folder.descriptor.fd(),
                       path.filename().c_str()) != 0)
            fail("rename", path);
        flushNames(folder);
    } catch (...) {
        ::unlinkat(folder.descriptor.fd(), temporary.c_str(), 0);
        throw;
    }
}

void PosixFileSystem::move(const fs::path &from, const fs::path &to)
{
    const Folder source = openFolder(from.parent_path());
    const Folder destination = openFolder(to.parent_path());
    const std::string name = from.filename().native();
    const std::string newName = to.filename().native();
    if (renameToFreePlace(source, name, destination, newName)) {
        flushNames(destination);
        flushNames(source);
        return;
    }
    if (errno != EXDEV)
        fail("rename", errno == EEXIST || errno == ENOTEMPTY ? to : from);

    const std::string temporary = temporaryName();
    try {
        copyEntry(*this, source, name, destination, temporary);
        if (!renameToFreePlace(destination, temporary, destination, newName))
            fail("rename", to);
        flushNames(destination);
    } catch (...) {
        if (PosixCalls::kindOf(destination, temporary))
            removeEntry(*this, destination, temporary);
        throw;
    }
    removeEntry(*this, source, name);
}

void PosixFileSystem::flush(const fs::path &folder)
{
    const Folder top = openFolder(folder);
    startWriting(*this, top);
    awaitWritten(*this, openFolder(folder));
}

void PosixFileSystem::removeTree(const fs::path &path)
{
    removeEntry(*this, openFolder(path.parent_path()), path.filename().native());
}

Folder PosixFileSystem::lock(const fs::path &folder, LockMode mode) const
{
    constexpr std::chrono::seconds longestWait{10};
    const auto deadline = Clock::now() + longestWait;
    // The folder above is the door, locked while waiting: a writer who waits there keeps out the readers who
    // come later. Otherwise readers who take turns could keep the writer out.
    const Folder door = openFolder(folder.parent_path());
    awaitLock(door, mode, deadline);
    Folder locked = openFolder(folder);
    awaitLock(locked, mode, deadline);
    return locked;
}

} // namespace vornel

#include "FaultyFileSystem.h"

namespace vornel {

namespace fs = std::filesystem;

namespace {

[[noreturn]] void failAsDisk()
{
    throw fs::filesystem_error("injected", std::make_error_code(std::errc::io_error));
}

} // namespace

void FaultyFileSystem::failAt(int call)
{
    m_calls = 0;
    m_failing = call;
}

void FaultyFileSystem::count() const
{
    if (++m_calls == m_failing)
        failAsDisk();
}

template <typename Change>
void FaultyFileSystem::change(const Change &make)
{
    const bool fails = ++m_calls == m_failing;
    if (fails && !m_afterwards)
        failAsDisk();
    make();
    if (fails)
        failAsDisk();
}

std::optional<FileKind> FaultyFileSystem::kindAt(const fs::path &path) const
{
    count();
    return PosixFileSystem::kindAt(path);
}

std::optional<FileKind> FaultyFileSystem::kindAt(const Folder &folder, const std::string &name) const
{
    count();
    return PosixFileSystem::kindAt(folder, name);
}

std::optional<QDateTime> FaultyFileSystem::changedAt(const Folder &folder, const std::string &name) const
{
    count();
    return PosixFileSystem::changedAt(folder, name);
}

Folder FaultyFileSystem::openFolder(const fs::path &path) const
{
    count();
    return PosixFileSystem::openFolder(path);
}

Folder FaultyFileSystem::openFolder(const Folder &parent, const std::string &name) const
{
    count();
    return PosixFileSystem::openFolder(parent, name);
}

std::vector<FolderEntry> FaultyFileSystem::list(const Folder &folder) const
{
    count();
    return PosixFileSystem::list(folder);
}

File FaultyFileSystem::openFile(const Folder &folder, const std::string &name) const
{
    count();
    return PosixFileSystem::openFile(folder, name);
}

std::size_t FaultyFileSystem::read(const File &file, std::int64_t offset, std::span<char> buffer) const
{
    count();
    return PosixFileSystem::read(file, offset, buffer);
}

Folder FaultyFileSystem::createFolder(const Folder &parent, const std::string &name)
{
    count();
    return PosixFileSystem::createFolder(parent, name);
}

void FaultyFileSystem::createFolders(const fs::path &path)
{
    change([&] { PosixFileSystem::createFolders(path); });
}

void FaultyFileSystem::createFile(const Folder &folder, const std::string &name, QByteArrayView bytes)
{
    change([&] { PosixFileSystem::createFile(folder, name, bytes); });
}

void FaultyFileSystem::replaceFile(const fs::path &path, QByteArrayView bytes)
{
    change([&] { PosixFileSystem::replaceFile(path, bytes); });
}

void FaultyFileSystem::move(const fs::path &from, const fs::path &to)
{
    if (refusesMove && refusesMove(from, to))
        failAsDisk();
    change([&] { PosixFileSystem::move(from, to); });
}

void FaultyFileSystem::removeTree(const fs::path &path)
{
    change([&] { PosixFileSystem::removeTree(path); });
}

void FaultyFileSystem::flush(const fs::path &folder)
{
    change([&] { PosixFileSystem::flush(folder); });
}

Folder FaultyFileSystem::lock(const fs::path &folder, LockMode mode) const
{
    count();
    return PosixFileSystem::lock(folder, mode);
}

} // namespace vornel

#include "FaultyFileSystem.h"

#include <type_traits>

namespace vornel {

namespace fs = std::filesystem;

namespace {

fs::path pathOf(const Place &place)
{
    return fs::path(place.folder.path) / place.name;
}

} // namespace

void FaultyFileSystem::failAsDisk() const
{
    throw fs::filesystem_error("injected", std::make_error_code(fault));
}

void FaultyFileSystem::refuseAcross(const Place &from, const Place &to) const
{
    const auto isFixedAt = [this](const Place &place) {
        return isFixed && PosixFileSystem::kindAt(place.folder, place.name) == FileKind::Directory &&
               isFixed(pathOf(place));
    };
    if ((hasVolumes && rootOf(from.folder.path) != rootOf(to.folder.path)) || isFixedAt(from) ||
        isFixedAt(to))
        throw fs::filesystem_error("rename", std::make_error_code(std::errc::cross_device_link));
}

void FaultyFileSystem::failAt(int number, Call kind)
{
    m_calls = 0;
    m_hasFailed = false;
    m_failing = number;
    m_kind = kind;
}

bool FaultyFileSystem::fails(Call kind) const
{
    const bool fails = kind == m_kind && ++m_calls == m_failing;
    if (fails)
        m_hasFailed = true;
    return fails;
}

void FaultyFileSystem::look() const
{
    if (fails(Call::Look))
        failAsDisk();
}

template <typename Change>
auto FaultyFileSystem::change(const Change &make)
{
    const bool isFailing = fails(Call::Change);
    if (isFailing && !m_afterwards)
        failAsDisk();
    const auto failAfterwards = [this, isFailing] {
        if (isFailing)
            failAsDisk();
    };
    if constexpr (std::is_void_v<decltype(make())>) {
        make();
        failAfterwards();
    } else {
        auto made = make();
        failAfterwards();
        return made;
    }
}

Folder FaultyFileSystem::openAbove(const fs::path &path) const
{
    look();
    return PosixFileSystem::openAbove(path);
}

Folder FaultyFileSystem::openFolder(const Folder &parent, const std::string &name) const
{
    look();
    return PosixFileSystem::openFolder(parent, name);
}

Folder FaultyFileSystem::openBelow(const Folder &top, const fs::path &path) const
{
    look();
    return PosixFileSystem::openBelow(top, path);
}

std::optional<FileKind> FaultyFileSystem::kindAt(const Folder &folder, const std::string &name) const
{
    look();
    return PosixFileSystem::kindAt(folder, name);
}

std::optional<QDateTime> FaultyFileSystem::changedAt(const Folder &folder, const std::string &name) const
{
    look();
    return PosixFileSystem::changedAt(folder, name);
}

std::vector<FolderEntry> FaultyFileSystem::list(const Folder &folder) const
{
    look();
    return PosixFileSystem::list(folder);
}

File FaultyFileSystem::openFile(const Folder &folder, const std::string &name) const
{
    look();
    return PosixFileSystem::openFile(folder, name);
}

std::size_t FaultyFileSystem::read(const File &file, std::int64_t offset, std::span<char> buffer) const
{
    look();
    return PosixFileSystem::read(file, offset, buffer);
}

Folder FaultyFileSystem::createFolder(const Folder &parent, const std::string &name)
{
    return change([&] { return PosixFileSystem::createFolder(parent, name); });
}

File FaultyFileSystem::createFile(const Folder &folder, const std::string &name)
{
    return change([&] { return PosixFileSystem::createFile(folder, name); });
}

void FaultyFileSystem::write(const File &file, QByteArrayView bytes)
{
    change([&] { PosixFileSystem::write(file, bytes); });
}

void FaultyFileSystem::rename(const Place &from, const Place &to, RenameMode mode)
{
    if (mode == RenameMode::Exchange && !canExchange)
        throw fs::filesystem_error("rename", std::make_error_code(std::errc::operation_not_supported));
    refuseAcross(from, to);
    if (refusesRename && refusesRename(pathOf(from), pathOf(to)))
        failAsDisk();
    change([&] { PosixFileSystem::rename(from, to, mode); });
}

void FaultyFileSystem::remove(const Folder &folder, const std::string &name)
{
    change([&] { PosixFileSystem::remove(folder, name); });
}

void FaultyFileSystem::flush(const File &file)
{
    change([&] { PosixFileSystem::flush(file); });
}

void FaultyFileSystem::flush(const Folder &folder)
{
    change([&] { PosixFileSystem::flush(folder); });
}

void FaultyFileSystem::flushVolume(const Folder &folder)
{
    change([&] { PosixFileSystem::flushVolume(folder); });
}

Folder FaultyFileSystem::lock(const fs::path &folder, LockMode mode) const
{
    look();
    return PosixFileSystem::lock(folder, mode);
}

} // namespace vornel

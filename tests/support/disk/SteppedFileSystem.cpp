#include "SteppedFileSystem.h"

#include <type_traits>

namespace vornel {

namespace fs = std::filesystem;

using Kind = Step::Kind;
using Real = PosixFileSystem;

template <typename Action>
auto SteppedFileSystem::take(const Step &step, const Action &action) const
{
    using Made = decltype(action());
    if constexpr (std::is_void_v<Made>) {
        around(step, action);
    } else {
        std::optional<Made> made;
        around(step, [&] { made.emplace(action()); });
        return std::move(*made);
    }
}

Folder SteppedFileSystem::openAbove(const fs::path &path) const
{
    return take({Kind::Look}, [&] { return Real::openAbove(path); });
}

Folder SteppedFileSystem::openFolder(const Folder &parent, const std::string &name) const
{
    return take({Kind::Look}, [&] { return Real::openFolder(parent, name); });
}

Folder SteppedFileSystem::openBelow(const Folder &top, const fs::path &path) const
{
    return take({Kind::Look}, [&] { return Real::openBelow(top, path); });
}

std::optional<FileKind> SteppedFileSystem::kindAt(const Folder &folder, const std::string &name) const
{
    return take({Kind::Look}, [&] { return Real::kindAt(folder, name); });
}

bool SteppedFileSystem::isAt(const Folder &folder, const Place &place) const
{
    return take({Kind::Look}, [&] { return Real::isAt(folder, place); });
}

std::optional<EntryStatus> SteppedFileSystem::statusOf(const Folder &folder, const std::string &name) const
{
    return take({Kind::Look}, [&] { return Real::statusOf(folder, name); });
}

std::optional<QDateTime> SteppedFileSystem::changedAt(const Folder &folder, const std::string &name) const
{
    return take({Kind::Look}, [&] { return Real::changedAt(folder, name); });
}

std::vector<FolderEntry> SteppedFileSystem::list(const Folder &folder) const
{
    return take({Kind::Look}, [&] { return Real::list(folder); });
}

File SteppedFileSystem::openFile(const Folder &folder, const std::string &name) const
{
    return take({Kind::Look}, [&] { return Real::openFile(folder, name); });
}

std::shared_ptr<QFile> SteppedFileSystem::openForOthers(const Folder &folder, const std::string &name) const
{
    return take({Kind::Look}, [&] { return Real::openForOthers(folder, name); });
}

std::size_t SteppedFileSystem::read(const File &file, std::int64_t offset, std::span<char> buffer) const
{
    return take({Kind::Look}, [&] { return Real::read(file, offset, buffer); });
}

Folder SteppedFileSystem::createFolder(const Folder &parent, const std::string &name)
{
    const Place place{parent, name};
    return take({Kind::Create, &parent.descriptor, &place}, [&] { return Real::createFolder(parent, name); });
}

File SteppedFileSystem::createFile(const Folder &folder, const std::string &name)
{
    const Place place{folder, name};
    return take({Kind::Create, &folder.descriptor, &place}, [&] { return Real::createFile(folder, name); });
}

void SteppedFileSystem::write(const File &file, QByteArrayView bytes)
{
    take({Kind::Write, &file.descriptor}, [&] { Real::write(file, bytes); });
}

void SteppedFileSystem::rename(const Place &from, const Place &to, RenameMode mode)
{
    take({Kind::Rename, &from.folder.descriptor, &from, &to, mode}, [&] { Real::rename(from, to, mode); });
}

void SteppedFileSystem::remove(const Folder &folder, const std::string &name)
{
    const Place place{folder, name};
    take({Kind::Remove, &folder.descriptor, &place}, [&] { Real::remove(folder, name); });
}

void SteppedFileSystem::copyLink(const Place &from, const Place &to)
{
    take({Kind::Create, &to.folder.descriptor, &to}, [&] { Real::copyLink(from, to); });
}

EntryStatus SteppedFileSystem::share(const Place &from, const Place &to)
{
    return take({Kind::Share, &to.folder.descriptor, &to}, [&] { return Real::share(from, to); });
}

void SteppedFileSystem::flush(const File &file)
{
    take({Kind::FlushFile, &file.descriptor}, [&] { Real::flush(file); });
}

void SteppedFileSystem::flush(const Folder &folder)
{
    take({Kind::FlushFolder, &folder.descriptor}, [&] { Real::flush(folder); });
}

void SteppedFileSystem::flushVolume(const Folder &folder)
{
    take({Kind::FlushVolume, &folder.descriptor}, [&] { Real::flushVolume(folder); });
}

Folder SteppedFileSystem::lock(const fs::path &folder, LockMode mode) const
{
    return take({Kind::Look}, [&] { return Real::lock(folder, mode); });
}

} // namespace vornel

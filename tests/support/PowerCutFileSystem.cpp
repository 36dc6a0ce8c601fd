#include "PowerCutFileSystem.h"

#include <VORNELCore/SerializedForms.h>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <ranges>
#include <stdexcept>
#include <system_error>

namespace vornel {

namespace fs = std::filesystem;

namespace {

/// An entry of a folder that stays known when the folder is moved.
class Spot
{
public:
    Spot(const Folder &folder, std::string name)
        : m_folder(std::make_shared<Descriptor>(::fcntl(folder.descriptor.fd(), F_DUPFD_CLOEXEC, 0))),
          m_name(std::move(name))
    {}

    bool isTaken() const
    {
        struct stat status
        {};
        return ::fstatat(m_folder->fd(), m_name.c_str(), &status, AT_SYMLINK_NOFOLLOW) == 0;
    }

    void moveTo(const Spot &other, unsigned int flags = RENAME_NOREPLACE) const
    {
        if (::renameat2(m_folder->fd(), m_name.c_str(), other.m_folder->fd(), other.m_name.c_str(), flags) !=
            0)
            throw std::system_error(errno, std::system_category(), "undoing a rename");
    }

    void takeFrom(const std::string &path) const
    {
        if (::renameat2(AT_FDCWD, path.c_str(), m_folder->fd(), m_name.c_str(), RENAME_NOREPLACE) != 0)
            throw std::system_error(errno, std::system_category(), "bringing back what was removed");
    }

    void giveTo(const std::string &path) const
    {
        if (::renameat2(m_folder->fd(), m_name.c_str(), AT_FDCWD, path.c_str(), RENAME_NOREPLACE) != 0)
            throw std::system_error(errno, std::system_category(), "removing");
    }

private:
    std::shared_ptr<Descriptor> m_folder;
    std::string m_name;
};

} // namespace

void PowerCutFileSystem::cutAt(int step)
{
    m_changes.clear();
    m_unflushedFiles.clear();
    m_steps = 0;
    m_cut = step;
    m_isOff = false;
}

void PowerCutFileSystem::step()
{
    m_isOff = m_isOff || ++m_steps == m_cut;
    if (m_isOff)
        throw std::runtime_error("no power");
}

void PowerCutFileSystem::forget(Survival survival, unsigned seed)
{
    std::minstd_rand chance(seed);
    const std::size_t kept = survival == Survival::Nothing ? 0 : m_changes.size();
    const std::size_t first =
        survival == Survival::Some ? std::uniform_int_distribution<std::size_t>(0, kept)(chance) : kept;
    for (const Change &change : m_changes | std::views::drop(first) | std::views::reverse) {
        if (!change.unflushed.empty())
            change.undo();
    }
    for (const Descriptor &file : m_unflushedFiles | std::views::values) {
        const bool isKept = survival == Survival::Some && std::bernoulli_distribution()(chance);
        if (!isKept && ::ftruncate(file.fd(), 0) != 0)
            throw std::system_error(errno, std::system_category(), "emptying a file");
    }
    m_changes.clear();
    m_unflushedFiles.clear();
}

Folder PowerCutFileSystem::createFolder(const Folder &parent, const std::string &name)
{
    const std::scoped_lock lock(m_mutex);
    step();
    Folder folder = PosixFileSystem::createFolder(parent, name);
    rememberCreation(parent, name);
    return folder;
}

File PowerCutFileSystem::createFile(const Folder &folder, const std::string &name)
{
    const std::scoped_lock lock(m_mutex);
    step();
    File file = PosixFileSystem::createFile(folder, name);
    rememberCreation(folder, name);
    return file;
}

void PowerCutFileSystem::copyLink(const Place &from, const Place &to)
{
    const std::scoped_lock lock(m_mutex);
    step();
    PosixFileSystem::copyLink(from, to);
    rememberCreation(to.folder, to.name);
}

void PowerCutFileSystem::write(const File &file, QByteArrayView bytes)
{
    const std::scoped_lock lock(m_mutex);
    step();
    PosixFileSystem::write(file, bytes);
    m_unflushedFiles.try_emplace(identityOf(file.descriptor),
                                 ::fcntl(file.descriptor.fd(), F_DUPFD_CLOEXEC, 0));
}

void PowerCutFileSystem::rename(const Place &from, const Place &to, RenameMode mode)
{
    const std::scoped_lock lock(m_mutex);
    step();
    const Spot before(from.folder, from.name);
    const Spot after(to.folder, to.name);
    std::function<void()> undo = [before, after] { after.moveTo(before); };
    if (mode == RenameMode::Exchange) {
        undo = [before, after] { after.moveTo(before, RENAME_EXCHANGE); };
    } else if (mode == RenameMode::OntoFile && after.isTaken()) {
        const std::string name = grave();
        if (::linkat(to.folder.descriptor.fd(), to.name.c_str(), AT_FDCWD, name.c_str(), 0) != 0)
            throw std::system_error(errno, std::system_category(), "keeping a file");
        undo = [before, after, name] {
            after.moveTo(before);
            after.takeFrom(name);
        };
    }
    PosixFileSystem::rename(from, to, mode);
    remember({identityOf(from.folder.descriptor), identityOf(to.folder.descriptor)}, std::move(undo));
}

void PowerCutFileSystem::remove(const Folder &folder, const std::string &name)
{
    const std::scoped_lock lock(m_mutex);
    step();
    const Spot spot(folder, name);
    const std::string kept = grave();
    if (kindAt(folder, name) == FileKind::Directory &&
        !list(PosixFileSystem::openFolder(folder, name)).empty())
        return PosixFileSystem::remove(folder, name); // which fails
    spot.giveTo(kept);
    remember({identityOf(folder.descriptor)}, [spot, kept] { spot.takeFrom(kept); });
}

void PowerCutFileSystem::flush(const File &file)
{
    const std::scoped_lock lock(m_mutex);
    step();
    m_unflushedFiles.erase(identityOf(file.descriptor));
}

void PowerCutFileSystem::flush(const Folder &folder)
{
    const std::scoped_lock lock(m_mutex);
    step();
    for (Change &change : m_changes)
        change.unflushed.erase(identityOf(folder.descriptor));
}

void PowerCutFileSystem::flushVolume(const Folder &)
{
    const std::scoped_lock lock(m_mutex);
    step();
    m_changes.clear();
    m_unflushedFiles.clear();
}

PowerCutFileSystem::Identity PowerCutFileSystem::identityOf(const Descriptor &descriptor)
{
    struct stat status
    {};
    if (::fstat(descriptor.fd(), &status) != 0)
        throw std::system_error(errno, std::system_category(), "looking at a file");
    return {status.st_dev, status.st_ino};
}

void PowerCutFileSystem::remember(std::set<Identity> folders, std::function<void()> undo)
{
    m_changes.push_back({std::move(folders), std::move(undo)});
}

void PowerCutFileSystem::rememberCreation(const Folder &folder, const std::string &name)
{
    const Spot spot(folder, name);
    remember({identityOf(folder.descriptor)}, [this, spot] { spot.giveTo(grave()); });
}

std::string PowerCutFileSystem::grave()
{
    return (pathFromText(m_graves.path()) / std::to_string(++m_graveCount)).native();
}

} // namespace vornel

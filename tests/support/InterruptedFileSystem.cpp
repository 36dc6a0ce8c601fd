#include "InterruptedFileSystem.h"

namespace vornel {

void InterruptedFileSystem::interruptAt(int call, Interruption interruption)
{
    m_callsLeft = call;
    m_interruption = std::move(interruption);
}

void InterruptedFileSystem::count() const
{
    const std::scoped_lock lock(m_mutex);
    if (m_interruption && --m_callsLeft <= 0 && m_interruption())
        m_interruption = nullptr;
}

Folder InterruptedFileSystem::openFolder(const Folder &parent, const std::string &name) const
{
    count();
    return PosixFileSystem::openFolder(parent, name);
}

std::vector<FolderEntry> InterruptedFileSystem::list(const Folder &folder) const
{
    count();
    return PosixFileSystem::list(folder);
}

File InterruptedFileSystem::openFile(const Folder &folder, const std::string &name) const
{
    count();
    return PosixFileSystem::openFile(folder, name);
}

Folder InterruptedFileSystem::createFolder(const Folder &parent, const std::string &name)
{
    count();
    return PosixFileSystem::createFolder(parent, name);
}

File InterruptedFileSystem::createFile(const Folder &folder, const std::string &name)
{
    count();
    return PosixFileSystem::createFile(folder, name);
}

void InterruptedFileSystem::write(const File &file, QByteArrayView bytes)
{
    count();
    PosixFileSystem::write(file, bytes);
}

void InterruptedFileSystem::rename(const Place &from, const Place &to, RenameMode mode)
{
    count();
    PosixFileSystem::rename(from, to, mode);
}

void InterruptedFileSystem::remove(const Folder &folder, const std::string &name)
{
    count();
    PosixFileSystem::remove(folder, name);
}

} // namespace vornel

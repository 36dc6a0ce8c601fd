#pragma once

#include <VORNELInfrastructure/PosixFileSystem.h>

#include <functional>
#include <mutex>

namespace vornel {

/// The real disk, with something that happens to it before one of the calls.
class InterruptedFileSystem : public PosixFileSystem
{
public:
    /// Returns false when it can't happen now, and is tried again at the next call.
    using Interruption = std::function<bool()>;

    /// Lets `interruption` happen before the n-th call from now on, counted from 1.
    void interruptAt(int call, Interruption interruption);

    bool wasInterrupted() const { return !m_interruption; }

    using PosixFileSystem::openFolder;
    Folder openFolder(const Folder &parent, const std::string &name) const override;
    std::vector<FolderEntry> list(const Folder &folder) const override;
    File openFile(const Folder &folder, const std::string &name) const override;
    Folder createFolder(const Folder &parent, const std::string &name) override;
    File createFile(const Folder &folder, const std::string &name) override;
    void write(const File &file, QByteArrayView bytes) override;
    void rename(const Place &from, const Place &to, RenameMode mode) override;
    void remove(const Folder &folder, const std::string &name) override;

private:
    void count() const;

    mutable std::mutex m_mutex; // calls come from several threads
    mutable Interruption m_interruption;
    mutable int m_callsLeft = 0;
};

} // namespace vornel

#pragma once

#include "FileSystem.h"

#include <atomic>

namespace vornel {

/// The disk of this machine: each step one system call, or the few that belong together.
class PosixFileSystem : public FileSystem
{
public:
    using FileSystem::kindAt;
    using FileSystem::openFolder;

    std::filesystem::path resolved(const std::filesystem::path &path) const override;
    Folder openAbove(const std::filesystem::path &path) const override;
    Folder openFolder(const Folder &parent, const std::string &name) const override;
    Folder openBelow(const Folder &top, const std::filesystem::path &path) const override;
    std::optional<FileKind> kindAt(const Folder &folder, const std::string &name) const override;
    bool isAt(const Folder &folder, const Place &place) const override;
    std::optional<QDateTime> changedAt(const Folder &folder, const std::string &name) const override;
    std::optional<EntryStatus> statusOf(const Folder &folder, const std::string &name) const override;
    std::vector<FolderEntry> list(const Folder &folder) const override;
    File openFile(const Folder &folder, const std::string &name) const override;
    std::shared_ptr<QFile> openForOthers(const Folder &folder, const std::string &name) const override;
    std::size_t read(const File &file, std::int64_t offset, std::span<char> buffer) const override;
    Folder createFolder(const Folder &parent, const std::string &name) override;
    File createFile(const Folder &folder, const std::string &name) override;
    void write(const File &file, QByteArrayView bytes) override;
    void rename(const Place &from, const Place &to, RenameMode mode) override;
    void remove(const Folder &folder, const std::string &name) override;
    void copyLink(const Place &from, const Place &to) override;
    EntryStatus share(const Place &from, const Place &to) override;
    void copyAttributes(const Place &from, const Place &to) override;
    void startWriting(const File &file) override;
    void flush(const File &file) override;
    void flush(const Folder &folder) override;
    void flushVolume(const Folder &folder) override;
    Folder lock(const std::filesystem::path &folder, LockMode mode) const override;

private:
    bool isCloned(const Place &from, const Place &to);

    std::atomic<std::uint64_t> m_withoutClones = 0; ///< the last volume that could make none
};

} // namespace vornel

#pragma once

#include "FileSystem.h"

namespace vornel {

/// The disk of this machine.
class PosixFileSystem : public FileSystem
{
public:
    std::filesystem::path resolved(const std::filesystem::path &path) const override;
    void confine(std::vector<std::filesystem::path> roots) override;
    std::optional<FileKind> kindAt(const std::filesystem::path &path) const override;
    std::optional<FileKind> kindAt(const Folder &folder, const std::string &name) const override;
    std::optional<QDateTime> changedAt(const Folder &folder, const std::string &name) const override;
    Folder openFolder(const std::filesystem::path &path) const override;
    Folder openFolder(const Folder &parent, const std::string &name) const override;
    std::vector<FolderEntry> list(const Folder &folder) const override;
    File openFile(const Folder &folder, const std::string &name) const override;
    std::size_t read(const File &file, std::int64_t offset, std::span<char> buffer) const override;
    Folder createFolder(const Folder &parent, const std::string &name) override;
    void createFolders(const std::filesystem::path &path) override;
    void createFile(const Folder &folder, const std::string &name, QByteArrayView bytes) override;
    void replaceFile(const std::filesystem::path &path, QByteArrayView bytes) override;
    void move(const std::filesystem::path &from, const std::filesystem::path &to) override;
    void flush(const std::filesystem::path &folder) override;
    void removeTree(const std::filesystem::path &path) override;
    Folder lock(const std::filesystem::path &folder, LockMode mode) const override;

private:
    const std::filesystem::path &rootOf(const std::filesystem::path &path) const;

    std::vector<std::filesystem::path> m_roots;
};

} // namespace vornel

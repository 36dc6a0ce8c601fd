#include "FileOperations.h"

#include "BestEffort.h"

#include <VORNELCore/Records/SerializedForms.h>

#include <QUuid>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace vornel {

namespace fs = std::filesystem;

namespace {

class FolderMaker
{
public:
    FolderMaker(FileSystem &files, Durability durability) : m_files(files), m_durability(durability) {}

    Folder make(const fs::path &path)
    {
        const bool isRoot = path == m_files.rootOf(path);
        if (auto folder = opened([&] { return m_files.openFolder(path); }))
            return std::move(*folder);
        return ensure(isRoot ? makeAbove(path.parent_path()) : make(path.parent_path()), path.filename());
    }

private:
    /// Opens a folder above a root, created with those above it.
    Folder makeAbove(const fs::path &path)
    {
        if (auto folder = opened([&] { return m_files.openAbove(path); }))
            return std::move(*folder);
        return ensure(makeAbove(path.parent_path()), path.filename());
    }

    /// What `open` opens; nothing when nothing is there.
    template <typename Open>
    std::optional<Folder> opened(const Open &open)
    try {
        return open();
    } catch (const fs::filesystem_error &error) {
        if (error.code() != std::errc::no_such_file_or_directory)
            throw;
        return std::nullopt;
    }

    /// Creates the folder, or opens the one that another program has created at the same moment.
    Folder ensure(const Folder &parent, const std::string &name)
    try {
        Folder created = m_files.createFolder(parent, name);
        if (m_durability == Durability::Now)
            m_files.flush(parent);
        return created;
    } catch (const fs::filesystem_error &error) {
        if (error.code() != std::errc::file_exists)
            throw;
        return m_files.openFolder(parent, name);
    }

    FileSystem &m_files;
    Durability m_durability;
};

} // namespace

void readWhole(const FileSystem &files, const File &file, const std::function<void(QByteArrayView)> &sink)
{
    std::array<char, 64UL * 1024> buffer;
    for (std::int64_t offset = 0; offset < file.size();) {
        const auto left = static_cast<std::size_t>(file.size() - offset);
        const std::size_t count =
            files.read(file, offset, std::span(buffer).first(std::min(left, buffer.size())));
        if (count == 0)
            return;
        offset += static_cast<std::int64_t>(count);
        sink(QByteArrayView(buffer.data(), static_cast<qsizetype>(count)));
    }
}

QByteArray readFile(const FileSystem &files, const Folder &folder, const std::string &name,
                    std::int64_t limit)
{
    const File file = files.openFile(folder, name);
    if (file.size() > limit)
        throw fs::filesystem_error("read", fs::path(folder.path) / name,
                                   std::make_error_code(std::errc::file_too_large));
    QByteArray content;
    content.reserve(file.size());
    readWhole(files, file, [&content](QByteArrayView bytes) { content.append(bytes); });
    return content;
}

QByteArray readFile(const FileSystem &files, const fs::path &path, std::int64_t limit)
{
    return readFile(files, files.openFolder(path.parent_path()), path.filename(), limit);
}

void copyFile(FileSystem &files, const File &source, const Place &to)
{
    const File copy = files.createFile(to.folder, to.name);
    readWhole(files, source, [&](QByteArrayView bytes) { files.write(copy, bytes); });
}

void replaceFile(FileSystem &files, const fs::path &path, QByteArrayView bytes, Durability durability)
{
    const Folder folder = files.openFolder(path.parent_path());
    const std::string temporary = temporaryName();
    try {
        const File file = files.createFile(folder, temporary);
        files.write(file, bytes);
        if (durability == Durability::Now)
            files.flush(file);
        files.rename({folder, temporary}, {folder, path.filename()}, RenameMode::OntoFile);
    } catch (...) {
        bestEffort([&] { files.remove(folder, temporary); });
        throw;
    }
    if (durability == Durability::Now)
        flushNames(files, folder);
}

Folder createFolders(FileSystem &files, const fs::path &path, Durability durability)
{
    return FolderMaker(files, durability).make(path);
}

std::string temporaryName()
{
    return (u'.' + uuidText(QUuid::createUuid()) + u".tmp"_s).toStdString();
}

void flushNames(FileSystem &files, const Folder &folder) noexcept
{
    bestEffort([&] { files.flush(folder); });
}

} // namespace vornel

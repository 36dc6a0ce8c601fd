#include "SecureFileTree.h"

#include "BestEffort.h"
#include "ParallelMap.h"
#include "Sha256.h"
#include "SkillFiles.h"

#include <VORNELCore/LocaleText.h>
#include <VORNELCore/SerializedForms.h>
#include <VORNELCore/VORNELWorkspaceError.h>
#include <VORNELCore/WorkspaceValidation.h>

#include <algorithm>
#include <array>

namespace vornel::SecureFileTree {

namespace fs = std::filesystem;
using Entry = FileTreeSnapshot::Entry;

namespace {

/// Every open level costs a descriptor, of which a process has about a thousand.
constexpr int deepestLevel = 100;

/// From this size on, the files of a folder are hashed side by side.
constexpr std::int64_t largeFile = 1024 * 1024;

VORNELWorkspaceError unsafe(const std::string &relativePath)
{
    return VORNELWorkspaceError::unsafeImport(QString::fromStdString(relativePath));
}

VORNELWorkspaceError link(const std::string &relativePath)
{
    return VORNELWorkspaceError::symlinkUnsupported(QString::fromStdString(relativePath));
}

/// Runs `open`; an entry that became a link since it was listed is reported by its path in the tree.
template <typename Open>
auto openedInTree(const std::string &relativePath, const Open &open)
{
    try {
        return open();
    } catch (const VORNELWorkspaceError &error) {
        if (error.as<WorkspaceErrorCase::SymlinkUnsupported>() != nullptr)
            throw link(relativePath);
        throw;
    }
}

File openRegularFile(const FileSystem &files, const Folder &folder, const std::string &name,
                     const std::string &relativePath)
{
    File file = openedInTree(relativePath, [&] { return files.openFile(folder, name); });
    if (file.kind != FileKind::Regular || file.size > SkillFiles::sizeLimit)
        throw unsafe(relativePath);
    return file;
}

/// Hands the file's bytes to `sink` and returns their number. The limit holds for a file that grows too.
template <typename Sink>
std::int64_t readWhole(const FileSystem &files, const File &file, const std::string &relativePath,
                       const Sink &sink)
{
    std::array<char, 64 * 1024> buffer;
    std::int64_t total = 0;
    while (const std::size_t count = files.read(file, buffer)) {
        total += static_cast<std::int64_t>(count);
        if (total > SkillFiles::sizeLimit)
            throw unsafe(relativePath);
        sink(QByteArrayView(buffer.data(), static_cast<qsizetype>(count)));
    }
    return total;
}

/// A child of a folder on the walk.
struct Child
{
    std::string name;
    FileKind kind;
    QString sortKey;
};

class Walk
{
public:
    Walk(const FileSystem &files, TreeFilter filter) : m_files(files), m_filter(filter) {}

    /// Appends all that is below `folder`: its own entries first, then what its folders hold.
    void visit(const Folder &folder, const std::string &prefix = {}, int level = 1)
    {
        if (level > deepestLevel)
            throw unsafe(prefix);

        std::vector<Child> files;
        std::vector<Child> folders;
        for (Child &child : children(folder)) {
            if (accepts(child, prefix + child.name))
                (child.kind == FileKind::Directory ? folders : files).push_back(std::move(child));
        }
        addFiles(folder, files, prefix);
        for (const Child &child : folders) {
            const std::string relativePath = prefix + child.name;
            m_entries.push_back({relativePath, Entry::Kind::directory, 0, std::nullopt});
            visit(openedInTree(relativePath, [&] { return m_files.openFolder(folder, child.name); }),
                  relativePath + '/', level + 1);
        }
    }

    FileTreeSnapshot finish(const fs::path &root)
    {
        std::ranges::sort(m_entries, {}, &Entry::relativePath);
        for (const Entry &entry : m_entries) {
            std::string line{static_cast<char>(entry.kind), '\0'};
            line += entry.relativePath;
            line += '\0';
            line += std::to_string(entry.size);
            line += '\0';
            line += entry.fileDigest.value_or("");
            line += '\n';
            m_hash.update(line);
        }
        return {root, std::move(m_entries), m_hash.finish()};
    }

private:
    std::vector<Child> children(const Folder &folder) const
    {
        std::vector<Child> children;
        for (FolderEntry &entry : m_files.list(folder)) {
            QString sortKey = QString::fromStdString(entry.name);
            children.push_back({std::move(entry.name), entry.kind, std::move(sortKey)});
        }
        std::ranges::sort(children, [](const Child &a, const Child &b) {
            return LocaleText::standardCompare(a.sortKey, b.sortKey) < 0;
        });
        return children;
    }

    bool accepts(const Child &child, const std::string &relativePath) const
    {
        if (child.sortKey.toStdString() != child.name)
            throw unsafe(relativePath);
        WorkspaceValidation::validateRelativePath(relativePath);
        if (child.kind == FileKind::SymbolicLink)
            throw link(relativePath);
        if (!includes(m_filter, relativePath))
            return false;
        if (child.kind == FileKind::Other)
            throw unsafe(relativePath);
        return true;
    }

    void addFiles(const Folder &folder, const std::vector<Child> &children, const std::string &prefix)
    {
        std::vector<std::string> large;
        for (const Child &child : children) {
            const File file = openRegularFile(m_files, folder, child.name, prefix + child.name);
            if (file.size >= largeFile)
                large.push_back(child.name);
            else
                m_entries.push_back(fileEntry(file, prefix + child.name, m_hash));
        }
        if (large.empty())
            return;
        const auto hashed = parallelMap(large, [&](const std::string &name) {
            Sha256 hash;
            return fileEntry(openRegularFile(m_files, folder, name, prefix + name), prefix + name, hash);
        });
        m_entries.insert(m_entries.end(), hashed.begin(), hashed.end());
    }

    Entry fileEntry(const File &file, const std::string &relativePath, Sha256 &hash) const
    {
        const std::int64_t size =
            readWhole(m_files, file, relativePath, [&hash](QByteArrayView bytes) { hash.update(bytes); });
        return {relativePath, Entry::Kind::file, size, hash.finish()};
    }

    const FileSystem &m_files;
    TreeFilter m_filter;
    std::vector<Entry> m_entries;
    Sha256 m_hash;
};

FileTreeSnapshot snapshotOf(const FileSystem &files, const Folder &root, TreeFilter filter)
{
    Walk walk(files, filter);
    walk.visit(root);
    return walk.finish(root.path);
}

struct SplitPath
{
    std::string folder;
    std::string name;
};

SplitPath split(const std::string &relativePath)
{
    const std::size_t slash = relativePath.rfind('/');
    if (slash == std::string::npos)
        return {"", relativePath};
    return {relativePath.substr(0, slash), relativePath.substr(slash + 1)};
}

/// Opens a folder of the tree level by level, so that no link can lead out of it.
Folder openBelow(const FileSystem &files, const fs::path &top, const std::string &relativePath)
{
    Folder folder = files.openFolder(top);
    if (relativePath.empty())
        return folder;
    for (const fs::path &component : fs::path(relativePath))
        folder = files.openFolder(folder, component.native());
    return folder;
}

void copyEntry(FileSystem &files, const fs::path &source, const fs::path &destination, const Entry &entry)
{
    const SplitPath place = split(entry.relativePath);
    const Folder to = openBelow(files, destination, place.folder);
    if (entry.kind == Entry::Kind::directory) {
        files.createFolder(to, place.name);
        return;
    }
    const Folder from =
        openedInTree(entry.relativePath, [&] { return openBelow(files, source, place.folder); });
    const File file = openRegularFile(files, from, place.name, entry.relativePath);
    QByteArray content;
    content.reserve(file.size);
    readWhole(files, file, entry.relativePath, [&content](QByteArrayView bytes) { content.append(bytes); });
    files.createFile(to, place.name, content);
}

} // namespace

FileTreeSnapshot snapshot(const FileSystem &files, const fs::path &root, TreeFilter filter)
{
    const fs::path folder = standardizedPath(root);
    const std::optional<FileKind> kind = files.kindAt(folder);
    if (kind && *kind != FileKind::Directory && *kind != FileKind::SymbolicLink)
        throw VORNELWorkspaceError::integrityFailure(QStringLiteral("La racine n’est pas un dossier : ") +
                                                     pathText(folder.filename()));
    return snapshotOf(files, files.openFolder(folder), filter);
}

FileTreeSnapshot snapshot(const FileSystem &files, const Folder &parent, const std::string &name,
                          TreeFilter filter)
{
    return snapshotOf(files, files.openFolder(parent, name), filter);
}

void copyTree(FileSystem &files, const fs::path &source, const fs::path &destination, TreeFilter filter)
{
    const FileTreeSnapshot tree = snapshot(files, source, filter);
    if (files.kindAt(destination))
        throw VORNELWorkspaceError::integrityFailure(QStringLiteral("La destination existe déjà : ") +
                                                     pathText(destination.filename()));
    files.createFolders(destination);
    try {
        for (const Entry &entry : tree.entries)
            copyEntry(files, tree.root, destination, entry);
    } catch (...) {
        bestEffort([&] { files.removeTree(destination); });
        throw;
    }
}

} // namespace vornel::SecureFileTree

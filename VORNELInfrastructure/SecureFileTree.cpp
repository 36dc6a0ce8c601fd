#include "SecureFileTree.h"

#include "BestEffort.h"
#include "NaturalOrder.h"
#include "ParallelMap.h"
#include "Sha256.h"
#include "SkillFiles.h"

#include <VORNELCore/SerializedForms.h>
#include <VORNELCore/VORNELWorkspaceError.h>
#include <VORNELCore/WorkspaceValidation.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vornel::SecureFileTree {

namespace fs = std::filesystem;
using Entry = FileTreeSnapshot::Entry;

namespace {

/// Every open level costs a descriptor, of which a process has about a thousand.
constexpr int deepestLevel = 100;

/// From this size on, the files of a folder are hashed side by side.
constexpr std::int64_t largeFile = 1'048'576;

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

File openFile(const FileSystem &files, const Folder &folder, const std::string &name,
              const std::string &relativePath)
{
    File file = openedInTree(relativePath, [&] { return files.openFile(folder, name); });
    if (file.size > SkillFiles::sizeLimit)
        throw unsafe(relativePath);
    return file;
}

class Walk
{
public:
    Walk(const FileSystem &files, TreeFilter filter) : m_files(files), m_filter(filter) {}

    /// Appends all that is below `folder`: its own entries first, then what its folders hold.
    void visit(const Folder &folder, const std::string &prefix = {}, int level = 1)
    {
        if (level > deepestLevel)
            throw unsafe(prefix.substr(0, prefix.size() - 1));

        std::vector<FolderEntry> children = m_files.list(folder);
        std::ranges::sort(children, naturallyBefore, &FolderEntry::name);
        std::erase_if(children, [&](const FolderEntry &child) { return !accepts(child, prefix); });

        addFiles(folder, children, prefix);
        for (const FolderEntry &child : children) {
            if (child.kind != FileKind::Directory)
                continue;
            const std::string relativePath = prefix + child.name;
            m_entries.push_back({relativePath, Entry::Kind::directory, 0, std::nullopt});
            visit(openedInTree(relativePath, [&] { return m_files.openFolder(folder, child.name); }),
                  relativePath + '/', level + 1);
        }
    }

    FileTreeSnapshot finish(const fs::path &root)
    {
        std::ranges::sort(m_entries, {}, &Entry::relativePath);
        Sha256 hash;
        std::string line;
        for (const Entry &entry : m_entries) {
            line.assign({static_cast<char>(entry.kind), '\0'});
            line.append(entry.relativePath).push_back('\0');
            line.append(std::to_string(entry.size)).push_back('\0');
            if (entry.fileDigest)
                line.append(*entry.fileDigest);
            line.push_back('\n');
            hash.update(line);
        }
        return {root, std::move(m_entries), hash.finish()};
    }

private:
    /// Whether the walk takes this child; throws when the tree can't be taken with it in it. The folders
    /// above have passed the same checks, so the name alone decides.
    bool accepts(const FolderEntry &child, const std::string &prefix) const
    {
        if (!QByteArrayView(child.name).isValidUtf8())
            throw unsafe(prefix + child.name);
        WorkspaceValidation::validateRelativePath(child.name);
        if (child.kind == FileKind::SymbolicLink)
            throw link(prefix + child.name);
        if (!includes(m_filter, child.name))
            return false;
        if (child.kind == FileKind::Other)
            throw unsafe(prefix + child.name);
        return true;
    }

    void addFiles(const Folder &folder, const std::vector<FolderEntry> &children, const std::string &prefix)
    {
        std::vector<std::string> large;
        for (const FolderEntry &child : children) {
            if (child.kind != FileKind::Regular)
                continue;
            std::string relativePath = prefix + child.name;
            const File file = openFile(m_files, folder, child.name, relativePath);
            if (file.size >= largeFile)
                large.push_back(child.name);
            else
                m_entries.push_back(fileEntry(file, std::move(relativePath)));
        }
        if (large.empty())
            return;
        const auto hashed = parallelMap(large, [&](const std::string &name) {
            return fileEntry(openFile(m_files, folder, name, prefix + name), prefix + name);
        });
        m_entries.insert(m_entries.end(), hashed.begin(), hashed.end());
    }

    Entry fileEntry(const File &file, std::string relativePath) const
    {
        Sha256 hash;
        std::int64_t size = 0;
        readWhole(m_files, file, [&](QByteArrayView bytes) {
            hash.update(bytes);
            size += bytes.size();
        });
        return {std::move(relativePath), Entry::Kind::file, size, hash.finish()};
    }

    const FileSystem &m_files;
    TreeFilter m_filter;
    std::vector<Entry> m_entries;
};

/// Opens the root of a tree, which must be a folder.
template <typename Open>
Folder openedRoot(const fs::path &name, const Open &open)
try {
    return open();
} catch (const fs::filesystem_error &error) {
    if (error.code() == std::errc::not_a_directory)
        throw VORNELWorkspaceError::integrityFailure(u"La racine n’est pas un dossier : "_s + pathText(name));
    throw;
}

FileTreeSnapshot snapshotOf(const FileSystem &files, const Folder &root, TreeFilter filter)
{
    Walk walk(files, filter);
    walk.visit(root);
    return walk.finish(root.path);
}

void copyEntry(FileSystem &files, const fs::path &source, const fs::path &destination, const Entry &entry)
{
    const fs::path path = entry.relativePath;
    const Folder to = files.openFolder(destination / path.parent_path());
    if (entry.kind == Entry::Kind::directory) {
        files.createFolder(to, path.filename());
        return;
    }
    const Folder from =
        openedInTree(entry.relativePath, [&] { return files.openFolder(source / path.parent_path()); });
    const File file = openFile(files, from, path.filename(), entry.relativePath);
    QByteArray content;
    content.reserve(file.size);
    readWhole(files, file, [&content](QByteArrayView bytes) { content.append(bytes); });
    files.createFile(to, path.filename(), content);
}

} // namespace

FileTreeSnapshot snapshot(const FileSystem &files, const fs::path &root, TreeFilter filter)
{
    const fs::path path = standardizedPath(root);
    const Folder folder = openedRoot(path.filename(), [&] { return files.openFolder(path); });
    return snapshotOf(files, folder, filter);
}

FileTreeSnapshot snapshot(const FileSystem &files, const Folder &parent, const std::string &name,
                          TreeFilter filter)
{
    const Folder folder = openedRoot(name, [&] { return files.openFolder(parent, name); });
    return snapshotOf(files, folder, filter);
}

void copyTree(FileSystem &files, const fs::path &source, const fs::path &destination, TreeFilter filter)
{
    const FileTreeSnapshot tree = snapshot(files, source, filter);
    if (files.kindAt(destination))
        throw VORNELWorkspaceError::integrityFailure(u"La destination existe déjà : "_s +
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

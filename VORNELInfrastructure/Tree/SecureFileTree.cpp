#include "SecureFileTree.h"

#include "NaturalOrder.h"
#include "ParallelMap.h"
#include "Sha256.h"

#include <VORNELCore/Errors/VORNELWorkspaceError.h>
#include <VORNELCore/Errors/WorkspaceValidation.h>
#include <VORNELCore/Records/SerializedForms.h>
#include <VORNELInfrastructure/Disk/BestEffort.h>
#include <VORNELInfrastructure/Disk/FileOperations.h>
#include <VORNELInfrastructure/Disk/TreeOperations.h>
#include <VORNELInfrastructure/Skills/SkillFiles.h>

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

/// What a walk does with the bytes of the files.
enum class Task { Hash, Copy, HashAndCopy };

/// A folder of the tree that a walk has come to.
struct Level
{
    const Folder &folder;
    const Folder *copy; ///< where its content is written, if anywhere
    std::string prefix = {};
    int depth = 1;
};

class Walk
{
public:
    /// Only looks.
    Walk(const FileSystem &files, TreeFilter filter) : m_files(files), m_filter(filter) {}

    /// Writes what it reads, where the levels say.
    Walk(FileSystem &files, TreeFilter filter, Task task)
        : m_files(files), m_filter(filter), m_task(task), m_writer(&files)
    {}

    /// Appends all that is below a folder, each of its entries with what it holds before the next. Large
    /// files are read together at the end, but what goes wrong is told in the order of the entries.
    void visit(const Level &level)
    {
        if (level.depth > deepestLevel)
            throw unsafe(level.prefix.substr(0, level.prefix.size() - 1));

        std::vector<FolderEntry> children = m_files.list(level.folder);
        std::ranges::sort(children, naturallyBefore, &FolderEntry::name);
        std::vector<std::string> large;
        const std::exception_ptr failure = failureOf([&] {
            for (const FolderEntry &child : children)
                add(level, child, large);
        });
        addLargeFiles(level, large);
        if (failure)
            std::rethrow_exception(failure);
    }

    FileTreeSnapshot finish(const fs::path &root)
    {
        std::ranges::sort(m_entries, {}, &Entry::relativePath);
        std::string digest = FileTreeSnapshot::digestOf(m_entries);
        return {root, std::move(m_entries), std::move(digest), m_isWhole};
    }

private:
    /// Whether the walk takes this child; throws when the tree can't be taken with it in it. The folders
    /// above have passed the same checks, so the name alone decides.
    bool accepts(const FolderEntry &child, const std::string &prefix) const
    {
        WorkspaceValidation::validateRelativePath(child.name);
        if (child.kind == FileKind::SymbolicLink)
            throw link(prefix + child.name);
        if (!includes(m_filter, child.name))
            return false;
        if (child.kind == FileKind::Other || !QByteArrayView(child.name).isValidUtf8())
            throw unsafe(prefix + child.name);
        return true;
    }

    /// Appends an entry, or notes it among the large files, which come later.
    void add(const Level &level, const FolderEntry &child, std::vector<std::string> &large)
    {
        if (!accepts(child, level.prefix)) {
            m_isWhole = false;
        } else if (child.kind == FileKind::Directory) {
            addFolder(level, child.name);
        } else {
            const File file = openFile(m_files, level.folder, child.name, level.prefix + child.name);
            if (file.size >= largeFile)
                large.push_back(child.name);
            else
                m_entries.push_back(fileEntry(level, child.name, file));
        }
    }

    void addFolder(const Level &level, const std::string &name)
    {
        const std::string path = level.prefix + name;
        m_entries.push_back({path, Entry::Kind::directory, 0, std::nullopt});
        const Folder folder = openedInTree(path, [&] { return m_files.openFolder(level.folder, name); });
        std::optional<Folder> copy;
        if (level.copy != nullptr)
            copy = m_writer->createFolder(*level.copy, name);
        visit({folder, copy ? &*copy : nullptr, path + '/', level.depth + 1});
    }

    void addLargeFiles(const Level &level, const std::vector<std::string> &large)
    {
        const auto entries = parallelMap(large, [&](const std::string &name) {
            return fileEntry(level, name, openFile(m_files, level.folder, name, level.prefix + name));
        });
        m_entries.insert(m_entries.end(), entries.begin(), entries.end());
    }

    Entry fileEntry(const Level &level, const std::string &name, const File &file) const
    {
        Entry entry{level.prefix + name, Entry::Kind::file, 0, std::nullopt};
        std::optional<File> copy;
        if (m_task != Task::Hash)
            copy = m_writer->createFile(*level.copy, name);
        std::optional<Sha256> hash;
        if (m_task != Task::Copy)
            hash.emplace();
        readWhole(m_files, file, [&](QByteArrayView bytes) {
            entry.size += bytes.size();
            if (hash)
                hash->update(bytes);
            if (copy)
                m_writer->write(*copy, bytes);
        });
        if (hash)
            entry.fileDigest = hash->finish();
        return entry;
    }

    const FileSystem &m_files;
    TreeFilter m_filter;
    Task m_task = Task::Hash;
    FileSystem *m_writer = nullptr;
    std::vector<Entry> m_entries;
    bool m_isWhole = true;
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
    walk.visit({root, nullptr});
    return walk.finish(root.path);
}

/// Walks over `source` and copies it.
Walk copiedWalk(FileSystem &files, const fs::path &source, const fs::path &destination, TreeFilter filter,
                Task task)
{
    const fs::path path = standardizedPath(source);
    const Folder from = openedRoot(path.filename(), [&] { return files.openFolder(path); });
    if (files.kindAt(destination)) {
        snapshotOf(files, from, filter); // what is wrong with the source is told first
        throw VORNELWorkspaceError::integrityFailure(u"La destination existe déjà : "_s +
                                                     pathText(destination.filename()));
    }
    const Folder to = files.createFolder(createFolders(files, destination.parent_path(), Durability::Later),
                                         destination.filename());
    try {
        Walk walk(files, filter, task);
        walk.visit({from, &to});
        return walk;
    } catch (...) {
        bestEffort([&] { removeTree(files, destination); });
        throw;
    }
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
    copiedWalk(files, source, destination, filter, Task::Copy);
}

FileTreeSnapshot copyTreeAndSnapshot(FileSystem &files, const fs::path &source, const fs::path &destination,
                                     TreeFilter filter)
{
    return copiedWalk(files, source, destination, filter, Task::HashAndCopy).finish(source);
}

} // namespace vornel::SecureFileTree

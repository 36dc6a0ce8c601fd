#include "SecureFileTree.h"

#include "Sha256.h"
#include "TreeWalk.h"

#include <VORNELCore/Errors/VORNELWorkspaceError.h>
#include <VORNELCore/Records/SerializedForms.h>
#include <VORNELInfrastructure/Disk/BestEffort.h>
#include <VORNELInfrastructure/Disk/FileOperations.h>
#include <VORNELInfrastructure/Disk/TreeOperations.h>

using namespace Qt::StringLiterals;

namespace vornel::SecureFileTree {

namespace fs = std::filesystem;

namespace {

/// Fingerprints the files of a tree.
class FingerprintSink
{
public:
    explicit FingerprintSink(const FileSystem &files) : m_files(files) {}

    /// Nothing is made of the folders.
    struct Folder
    {};

    static Folder addFolder(const Folder & /*parent*/, const std::string & /*name*/) { return {}; }

    void addFile(const Folder & /*parent*/, const std::string & /*name*/, const File &file,
                 FileTreeSnapshot::Entry &entry) const
    {
        Sha256 hash;
        readWhole(m_files, file, [&](QByteArrayView bytes) {
            entry.size += bytes.size();
            hash.update(bytes);
        });
        entry.fileDigest = hash.finish();
    }

private:
    const FileSystem &m_files;
};

/// Takes the place of `Sha256` in a copy that needs no fingerprint.
struct NoHash
{
    void update(QByteArrayView /*bytes*/) const {}
    static std::optional<std::string> finish() { return std::nullopt; }
};

/// Copies the folders and files of a tree.
template <typename Hash>
class CopySink
{
public:
    explicit CopySink(FileSystem &files) : m_files(files) {}

    using Folder = vornel::Folder;

    Folder addFolder(const Folder &parent, const std::string &name) const
    {
        return m_files.createFolder(parent, name);
    }

    void addFile(const Folder &parent, const std::string &name, const File &file,
                 FileTreeSnapshot::Entry &entry) const
    {
        const File copy = m_files.createFile(parent, name);
        Hash hash;
        readWhole(m_files, file, [&](QByteArrayView bytes) {
            entry.size += bytes.size();
            hash.update(bytes);
            m_files.write(copy, bytes);
        });
        entry.fileDigest = hash.finish();
    }

private:
    FileSystem &m_files;
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

FileTreeSnapshot snapshotOf(const FileSystem &files, const Folder &root, TreeFilter filter,
                            FileDigests *known = nullptr)
{
    TreeWalk walk(files, filter, FingerprintSink(files), known);
    walk.run(root, {});
    return walk.finish(root.path);
}

Folder openedRoot(const FileSystem &files, const fs::path &root)
{
    const fs::path path = standardizedPath(root);
    return openedRoot(path.filename(), [&] { return files.openFolder(path); });
}

Folder openedRoot(const FileSystem &files, const Folder &parent, const std::string &name)
{
    return openedRoot(name, [&] { return files.openFolder(parent, name); });
}

/// Walks over `from` and copies it; `Hash` is `Sha256`, or `NoHash` for a copy without a fingerprint.
template <typename Hash>
auto copiedWalk(FileSystem &files, const Folder &from, const fs::path &destination, TreeFilter filter)
{
    if (files.kindAt(destination)) {
        snapshotOf(files, from, filter); // an error in the source comes first
        throw VORNELWorkspaceError::integrityFailure(u"La destination existe déjà : "_s +
                                                     pathText(destination.filename()));
    }
    const Folder to = files.createFolder(createFolders(files, destination.parent_path(), Durability::Later),
                                         destination.filename());
    try {
        TreeWalk walk(files, filter, CopySink<Hash>(files));
        walk.run(from, to);
        return walk;
    } catch (...) {
        bestEffort([&] { removeTree(files, destination); });
        throw;
    }
}

} // namespace

FileTreeSnapshot snapshot(const FileSystem &files, const fs::path &root, TreeFilter filter,
                          FileDigests *known)
{
    return snapshotOf(files, openedRoot(files, root), filter, known);
}

FileTreeSnapshot snapshot(const FileSystem &files, const Folder &parent, const std::string &name,
                          TreeFilter filter, FileDigests *known)
{
    return snapshotOf(files, openedRoot(files, parent, name), filter, known);
}

void copyTree(FileSystem &files, const fs::path &source, const fs::path &destination, TreeFilter filter)
{
    copiedWalk<NoHash>(files, openedRoot(files, source), destination, filter);
}

FileTreeSnapshot copyTreeAndSnapshot(FileSystem &files, const fs::path &source, const fs::path &destination,
                                     TreeFilter filter)
{
    return copiedWalk<Sha256>(files, openedRoot(files, source), destination, filter).finish(source);
}

FileTreeSnapshot copyTreeAndSnapshot(FileSystem &files, const Folder &parent, const std::string &name,
                                     const fs::path &destination, TreeFilter filter)
{
    return copiedWalk<Sha256>(files, openedRoot(files, parent, name), destination, filter)
        .finish(destination);
}

} // namespace vornel::SecureFileTree

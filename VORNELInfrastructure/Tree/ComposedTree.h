#pragma once

#include <VORNELInfrastructure/Disk/FileSystem.h>
#include <VORNELInfrastructure/Disk/TreeOperations.h>
#include <VORNELInfrastructure/Tree/FileTreeSnapshot.h>

#include <QByteArray>

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace vornel {

/// A folder that is put together from parts of others: what it holds under each path, and where that comes
/// from. Paths are relative to it, in UTF-8.
class ComposedTree
{
public:
    /// Takes one entry of a tree, and not what is below it.
    void take(const FileTreeSnapshot &tree, const FileTreeSnapshot::Entry &entry);

    /// Takes all that a tree holds.
    void takeAll(const FileTreeSnapshot &tree);

    /// Makes what is at and below a path that of a tree: nothing where the tree has nothing there.
    void replace(const FileTreeSnapshot &tree, const std::string &path);

    /// Makes an empty folder where nothing stands.
    void putFolder(const std::string &path);

    /// Takes away what is at and below a path.
    void remove(const std::string &path) { extract(path); }

    /// Moves what is at and below a path to one where nothing stands.
    void move(const std::string &from, const std::string &to);

    /// Makes a file of these bytes; throws `unsafeImport` where a skill may hold none so large.
    void put(const std::string &path, const QByteArray &bytes);

    /// What stands at a path; nothing where there is nothing.
    std::optional<FileTreeSnapshot::Entry::Kind> kindAt(const std::string &path) const;

    /// Whether a file stands where a path would need a folder.
    bool isBelowFile(const std::string &path) const;

    /// The entries that a snapshot of the folder would have, and its digest.
    std::vector<FileTreeSnapshot::Entry> entries() const;
    std::string digest() const { return FileTreeSnapshot::digestOf(entries()); }

    /// The bytes of the file at a path; nothing where there is none.
    std::optional<QByteArray> bytesOf(const FileSystem &files, const std::string &path) const;

    /// What a snapshot of the folder would be if it stood there.
    FileTreeSnapshot snapshotAt(const std::filesystem::path &root) const;

    /// Makes the folder where nothing stands yet. What it has from `former`, a folder that is deleted once
    /// this one is in its place, it takes over; the rest is copied. Returns what may not be on the disk.
    Unflushed write(FileSystem &files, const std::filesystem::path &folder,
                    const std::filesystem::path &former = {}) const;

private:
    /// An entry, and where its bytes are.
    struct Piece
    {
        FileTreeSnapshot::Entry entry;
        std::string source = {};              ///< a file
        std::optional<QByteArray> bytes = {}; ///< in the place of a source
    };

    void add(Piece piece);

    /// Takes out what is at and below a path.
    std::vector<Piece> extract(const std::string &path);

    static QByteArray bytesOf(const FileSystem &files, const Piece &piece);

    std::map<std::string, Piece> m_pieces;
};

/// Whether `path` is `ancestor` or lies below it.
bool isAtOrBelow(const std::string &path, const std::string &ancestor);

} // namespace vornel

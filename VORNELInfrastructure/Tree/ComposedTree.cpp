#include "ComposedTree.h"

#include "Sha256.h"
#include "SharingCopy.h"

#include <VORNELCore/Errors/VORNELWorkspaceError.h>
#include <VORNELCore/Records/SkillFiles.h>
#include <VORNELInfrastructure/Disk/FileOperations.h>
#include <VORNELInfrastructure/Disk/LastFolder.h>

#include <algorithm>
#include <ranges>

namespace vornel {

namespace fs = std::filesystem;
using Entry = FileTreeSnapshot::Entry;

bool isAtOrBelow(const std::string &path, const std::string &ancestor)
{
    return path.starts_with(ancestor) && (path.size() == ancestor.size() || path[ancestor.size()] == '/');
}

void ComposedTree::take(const FileTreeSnapshot &tree, const Entry &entry)
{
    add({.entry = entry, .source = tree.url(entry)});
}

void ComposedTree::takeAll(const FileTreeSnapshot &tree)
{
    for (const Entry &entry : tree.entries)
        take(tree, entry);
}

void ComposedTree::replace(const FileTreeSnapshot &tree, const std::string &path)
{
    remove(path);
    for (const Entry &entry : tree.entries) {
        if (isAtOrBelow(entry.relativePath, path))
            take(tree, entry);
    }
}

void ComposedTree::putFolder(const std::string &path)
{
    add({.entry = {path, Entry::Kind::directory, 0, std::nullopt}});
}

void ComposedTree::move(const std::string &from, const std::string &to)
{
    for (Piece &piece : extract(from)) {
        piece.entry.relativePath.replace(0, from.size(), to);
        add(std::move(piece));
    }
}

std::vector<ComposedTree::Piece> ComposedTree::extract(const std::string &path)
{
    std::vector<Piece> pieces;
    for (auto piece = m_pieces.lower_bound(path); piece != m_pieces.end();) {
        const auto here = piece++;
        if (isAtOrBelow(here->first, path))
            pieces.push_back(std::move(m_pieces.extract(here).mapped()));
    }
    return pieces;
}

void ComposedTree::put(const std::string &path, const QByteArray &bytes)
{
    if (bytes.size() > SkillFiles::sizeLimit)
        throw VORNELWorkspaceError::unsafeImport(QString::fromStdString(path));
    Sha256 hash;
    hash.update(bytes);
    add({.entry = {path, Entry::Kind::file, bytes.size(), hash.finish()}, .bytes = bytes});
}

/// The folders above a piece are there, and no files in their places.
void ComposedTree::add(Piece piece)
{
    const std::string path = piece.entry.relativePath;
    for (auto slash = path.find('/'); slash != std::string::npos; slash = path.find('/', slash + 1)) {
        const std::string above = path.substr(0, slash);
        const auto [place, isNew] = m_pieces.try_emplace(above);
        if (isNew || place->second.entry.kind == Entry::Kind::file)
            place->second = {.entry = {above, Entry::Kind::directory, 0, std::nullopt}};
    }
    m_pieces.insert_or_assign(path, std::move(piece));
}

std::optional<Entry::Kind> ComposedTree::kindAt(const std::string &path) const
{
    const auto piece = m_pieces.find(path);
    return piece == m_pieces.end() ? std::nullopt : std::optional(piece->second.entry.kind);
}

bool ComposedTree::isBelowFile(const std::string &path) const
{
    return std::ranges::any_of(m_pieces, [&](const auto &piece) {
        return piece.second.entry.kind == Entry::Kind::file && piece.first != path &&
               isAtOrBelow(path, piece.first);
    });
}

std::vector<Entry> ComposedTree::entries() const
{
    std::vector<Entry> entries;
    for (const Piece &piece : m_pieces | std::views::values)
        entries.push_back(piece.entry);
    return entries;
}

std::optional<QByteArray> ComposedTree::bytesOf(const FileSystem &files, const std::string &path) const
{
    const auto piece = m_pieces.find(path);
    if (piece == m_pieces.end() || piece->second.entry.kind != Entry::Kind::file)
        return std::nullopt;
    return bytesOf(files, piece->second);
}

QByteArray ComposedTree::bytesOf(const FileSystem &files, const Piece &piece)
{
    return piece.bytes ? *piece.bytes : readFile(files, piece.source, SkillFiles::sizeLimit);
}

FileTreeSnapshot ComposedTree::snapshotAt(const fs::path &root) const
{
    std::vector<Entry> all = entries();
    std::string digest = FileTreeSnapshot::digestOf(all);
    return {root, std::move(all), std::move(digest)};
}

Unflushed ComposedTree::write(FileSystem &files, const fs::path &folder, const fs::path &former) const
{
    std::vector<Entry> taken;
    for (const Piece &piece : m_pieces | std::views::values) {
        if (!piece.bytes)
            taken.push_back(piece.entry);
    }
    const auto source = [this](const Entry &entry) -> const std::string & {
        return m_pieces.at(entry.relativePath).source;
    };
    std::vector<fs::path> written;
    SharingCopy copy(files, folder);
    copy.share(taken, [&](const Entry &entry) {
        if (former.empty() || entry.names != 1 || !isAtOrBelow(source(entry), former.native()))
            return std::string();
        if (!wasWrittenLongAgo(std::chrono::seconds(entry.modifiedAt)))
            written.push_back(folder / entry.relativePath);
        return source(entry);
    });
    copy.copyRest(source);
    LastFolder folders(files);
    for (const auto &[path, piece] : m_pieces) {
        if (!piece.bytes)
            continue;
        const std::string &url = written.emplace_back(folder / path).native();
        const Place place = folders.placeAt(url);
        files.write(files.createFile(place.folder, place.name), *piece.bytes);
    }
    Unflushed made = copy.made();
    made.files.insert(made.files.end(), written.begin(), written.end());
    return made;
}

} // namespace vornel

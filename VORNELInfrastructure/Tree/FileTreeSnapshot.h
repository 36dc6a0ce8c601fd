#pragma once

#include <QString>
#include <QStringList>

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vornel {

/// Which entries of a tree a walk takes; never a hidden one, nor what lies below a hidden folder.
enum class TreeFilter { all, excludingManifest };

/// Whether `filter` keeps the entry at `relativePath` (UTF-8). `excludingManifest` also drops every
/// "vornel.json", at any depth.
bool includes(TreeFilter filter, std::string_view relativePath);

/// What a folder holds, and one digest for all of it: two folders with the same visible paths and bytes have
/// the same digest, wherever they stand and whatever their dates and permissions.
struct FileTreeSnapshot
{
    struct Entry
    {
        /// Directory is "D", file is "F".
        enum class Kind : char { directory = 'D', file = 'F' };

        std::string relativePath; ///< UTF-8, components joined by "/"
        Kind kind;
        std::int64_t size;                     ///< bytes read; 0 for a directory
        std::optional<std::string> fileDigest; ///< lower-case hexadecimal SHA-256; absent for a directory
        std::int64_t modifiedAt = 0;           ///< of a file, as when it was opened
        std::uint64_t names = 1;               ///< of a file, at that moment
    };

    std::filesystem::path root;
    std::vector<Entry> entries; ///< by the code points of their paths
    std::string digest;         ///< lower-case hexadecimal SHA-256 of the listing of `entries`
    bool isWhole = true;        ///< whether the filter has left nothing out

    /// The paths of the files, in the order of the entries.
    QStringList relativeFiles() const;

    /// What a snapshot with `excludingManifest` would be.
    FileTreeSnapshot content() const;

    /// The digest of that.
    std::string contentDigest() const;

    /// The digest of the listing of these entries.
    static std::string digestOf(const std::vector<Entry> &entries);

    /// Where an entry stands on the disk: its path.
    std::string url(const Entry &entry) const { return root.native() + '/' + entry.relativePath; }
};

} // namespace vornel

#pragma once

#include "FileTreeSnapshot.h"

#include <VORNELInfrastructure/Disk/LastFolder.h>
#include <VORNELInfrastructure/Disk/TreeOperations.h>

#include <functional>
#include <string>
#include <vector>

namespace vornel {

/// The path of a file that has the bytes of an entry; empty where there is none.
using PlaceOfBytes = std::function<std::string(const FileTreeSnapshot::Entry &)>;

/// Makes a folder of what was read of others, at a path where nothing stands: first with all that stands
/// elsewhere, too, and is shared, then with the rest, which is copied.
class SharingCopy
{
public:
    SharingCopy(FileSystem &files, std::filesystem::path destination)
        : m_files(files), m_destination(std::move(destination))
    {}

    /// Makes the folders, of which each comes before what it holds, and the files that can be shared.
    void share(const std::vector<FileTreeSnapshot::Entry> &entries, const PlaceOfBytes &sameFile);

    /// Copies the other files, each from its own place or all from one folder that holds them under the same
    /// paths. Throws `unsafeImport` for one that has become too large.
    void copyRest(const PlaceOfBytes &source);
    void copyRest(const std::filesystem::path &source);

    /// What is to be flushed if all that was shared is on the disk.
    const Unflushed &made() const { return m_made; }

    /// The files that were shared, as they were then: a further name changes when they were changed.
    const std::vector<EntryStatus> &shared() const { return m_shared; }

private:
    std::string pathOf(const FileTreeSnapshot::Entry &entry) const;
    bool isShared(const std::string &same, const Place &to, LastFolder &others);

    FileSystem &m_files;
    std::filesystem::path m_destination;
    std::vector<FileTreeSnapshot::Entry> m_rest;
    std::vector<EntryStatus> m_shared;
    Unflushed m_made;
};

/// Makes a folder that is to take the place of a former one, which is deleted then: the new one takes over
/// what the former one holds already. Until then, that has two names; a file that has further names already
/// is copied.
void copyTakingOver(FileSystem &files, const FileTreeSnapshot &source, const FileTreeSnapshot &former,
                    const std::filesystem::path &destination);

} // namespace vornel

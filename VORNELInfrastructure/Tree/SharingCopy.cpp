#include "SharingCopy.h"

#include <VORNELCore/Errors/VORNELWorkspaceError.h>
#include <VORNELCore/Records/SkillFiles.h>
#include <VORNELInfrastructure/Disk/BestEffort.h>
#include <VORNELInfrastructure/Disk/FileOperations.h>
#include <VORNELInfrastructure/Disk/LastFolder.h>

#include <algorithm>

namespace vornel {

namespace fs = std::filesystem;

using Entry = FileTreeSnapshot::Entry;

namespace {

class SharingCopy
{
public:
    SharingCopy(FileSystem &files, const PlaceOfBytes &source, const fs::path &destination,
                const PlaceOfBytes &sameFile)
        : m_files(files),
          m_source(source),
          m_destination(destination),
          m_sameFile(sameFile),
          m_copies(files),
          m_sources(files),
          m_shared(files)
    {}

    Unflushed run(const std::vector<Entry> &entries)
    {
        m_files.createFolder(createFolders(m_files, m_destination.parent_path(), Durability::Later),
                             m_destination.filename());
        m_made.folders.push_back(m_destination);
        for (const Entry &entry : entries) {
            const fs::path copy = m_destination / entry.relativePath;
            const Place to{m_copies.at(copy.parent_path()), copy.filename()};
            if (entry.kind == Entry::Kind::directory) {
                m_files.createFolder(to.folder, to.name);
                m_made.folders.push_back(copy);
            } else {
                const std::optional<Sharing> sharing = share(entry, to);
                if (!sharing)
                    copyFile(m_source(entry), entry, to);
                if (sharing != Sharing::Name)
                    m_made.files.push_back(copy);
            }
        }
        std::ranges::reverse(m_made.folders);
        return std::move(m_made);
    }

private:
    std::optional<Sharing> share(const Entry &entry, const Place &to)
    {
        const fs::path same = m_sameFile(entry);
        if (same.empty())
            return std::nullopt;
        std::optional<Sharing> sharing;
        bestEffort([&] { sharing = m_files.share({m_shared.at(same.parent_path()), same.filename()}, to); });
        if (!sharing) // a disk may have done what it reports as failed
            bestEffort([&] { m_files.remove(to.folder, to.name); });
        return sharing;
    }

    void copyFile(const fs::path &source, const Entry &entry, const Place &to)
    {
        const File file = m_files.openFile(m_sources.at(source.parent_path()), source.filename());
        if (file.size() > SkillFiles::sizeLimit)
            throw VORNELWorkspaceError::unsafeImport(QString::fromStdString(entry.relativePath));
        vornel::copyFile(m_files, file, to);
    }

    FileSystem &m_files;
    const PlaceOfBytes &m_source;
    const fs::path &m_destination;
    const PlaceOfBytes &m_sameFile;
    LastFolder m_copies;
    LastFolder m_sources;
    LastFolder m_shared;
    Unflushed m_made;
};

} // namespace

Unflushed copySharing(FileSystem &files, const FileTreeSnapshot &source, const fs::path &destination,
                      const PlaceOfBytes &sameFile)
{
    const auto place = [&source](const Entry &entry) { return source.url(entry); };
    return copySharing(files, source.entries, place, destination, sameFile);
}

Unflushed copySharing(FileSystem &files, const std::vector<Entry> &entries, const PlaceOfBytes &source,
                      const fs::path &destination, const PlaceOfBytes &sameFile)
{
    return SharingCopy(files, source, destination, sameFile).run(entries);
}

void copyTakingOver(FileSystem &files, const FileTreeSnapshot &source, const FileTreeSnapshot &former,
                    const fs::path &destination)
{
    copySharing(files, source, destination, [&former](const Entry &entry) {
        const auto own =
            std::ranges::lower_bound(former.entries, entry.relativePath, {}, &Entry::relativePath);
        const bool isThere = own != former.entries.end() && own->relativePath == entry.relativePath;
        return isThere && own->fileDigest == entry.fileDigest && own->names == 1 ? former.url(*own)
                                                                                 : fs::path();
    });
}

} // namespace vornel

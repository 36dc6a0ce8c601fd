#include "SharingCopy.h"

#include <VORNELCore/Errors/VORNELWorkspaceError.h>
#include <VORNELCore/Records/SkillFiles.h>
#include <VORNELInfrastructure/Disk/BestEffort.h>
#include <VORNELInfrastructure/Disk/FileOperations.h>

#include <algorithm>

namespace vornel {

namespace fs = std::filesystem;

using Entry = FileTreeSnapshot::Entry;

std::string SharingCopy::pathOf(const Entry &entry) const
{
    return m_destination.native() + '/' + entry.relativePath;
}

void SharingCopy::share(const std::vector<Entry> &entries, const PlaceOfBytes &sameFile)
{
    LastFolder copies(m_files);
    LastFolder others(m_files);
    copies.keep(m_destination,
                m_files.createFolder(createFolders(m_files, m_destination.parent_path(), Durability::Later),
                                     m_destination.filename()));
    m_made.folders.push_back(m_destination);
    for (const Entry &entry : entries) {
        const std::string path = pathOf(entry);
        const Place to = copies.placeAt(path);
        if (entry.kind == Entry::Kind::directory) {
            copies.keep(path, m_files.createFolder(to.folder, to.name));
            m_made.folders.emplace_back(path);
        } else if (!isShared(sameFile(entry), to, others)) {
            m_rest.push_back(entry);
        }
    }
    std::ranges::reverse(m_made.folders);
}

bool SharingCopy::isShared(const std::string &same, const Place &to, LastFolder &others)
{
    if (same.empty())
        return false;
    std::optional<EntryStatus> copy;
    bestEffort([&] { copy = m_files.share(others.placeAt(same), to); });
    if (!copy) { // a disk may have done what it reports as failed
        bestEffort([&] { m_files.remove(to.folder, to.name); });
        return false;
    }
    const bool isClone = copy->names == 1;
    if (isClone)
        m_made.files.push_back(fs::path(to.folder.path) / to.name);
    m_shared.push_back(*copy);
    return true;
}

void SharingCopy::copyRest(const PlaceOfBytes &source)
{
    LastFolder sources(m_files);
    LastFolder copies(m_files);
    for (const Entry &entry : m_rest) {
        const Place from = sources.placeAt(source(entry));
        const File file = m_files.openFile(from.folder, from.name);
        if (file.size() > SkillFiles::sizeLimit)
            throw VORNELWorkspaceError::unsafeImport(QString::fromStdString(entry.relativePath));
        const std::string copy = pathOf(entry);
        copyFile(m_files, file, copies.placeAt(copy));
        m_made.files.emplace_back(copy);
    }
}

void SharingCopy::copyRest(const fs::path &source)
{
    copyRest([&source](const Entry &entry) { return source.native() + '/' + entry.relativePath; });
}

void copyTakingOver(FileSystem &files, const FileTreeSnapshot &source, const FileTreeSnapshot &former,
                    const fs::path &destination)
{
    SharingCopy copy(files, destination);
    copy.share(source.entries, [&former](const Entry &entry) {
        const auto own =
            std::ranges::lower_bound(former.entries, entry.relativePath, {}, &Entry::relativePath);
        const bool isThere = own != former.entries.end() && own->relativePath == entry.relativePath;
        return isThere && own->fileDigest == entry.fileDigest && own->names == 1 ? former.url(*own)
                                                                                 : std::string();
    });
    copy.copyRest(source.root);
}

} // namespace vornel

#include "DiskUsage.h"

namespace vornel {

void DiskUsage::add(const Place &place)
{
    const std::optional<EntryStatus> status = m_files.statusOf(place.folder, place.name);
    if (!status)
        return;
    const bool isFolder = status->kind == FileKind::Directory;
    if (isFolder || status->names < 2)
        m_bytes += status->room;
    else
        ++m_shared.try_emplace(status->number, Shared{*status, 0}).first->second.found;
    if (!isFolder)
        return;
    const Folder folder = m_files.openFolder(place.folder, place.name);
    for (const FolderEntry &entry : m_files.list(folder))
        add({folder, entry.name});
}

std::int64_t DiskUsage::bytes() const
{
    std::int64_t sum = m_bytes;
    for (const auto &[number, shared] : m_shared) {
        if (shared.found >= shared.status.names)
            sum += shared.status.room;
    }
    return sum;
}

} // namespace vornel

#include "DiskUsage.h"

namespace vornel {

void DiskUsage::add(const Place &place)
{
    const std::optional<DiskUse> use = m_files.useOf(place.folder, place.name);
    if (!use)
        return;
    if (use->isFolder || use->names < 2)
        m_bytes += use->bytes;
    else
        ++m_shared.try_emplace(use->number, Shared{*use, 0}).first->second.found;
    if (!use->isFolder)
        return;
    const Folder folder = m_files.openFolder(place.folder, place.name);
    for (const FolderEntry &entry : m_files.list(folder))
        add({folder, entry.name});
}

std::int64_t DiskUsage::bytes() const
{
    std::int64_t sum = m_bytes;
    for (const auto &[number, shared] : m_shared) {
        if (shared.found >= shared.use.names)
            sum += shared.use.bytes;
    }
    return sum;
}

} // namespace vornel

#include "SharedFiles.h"

#include <VORNELCore/Records/SkillFiles.h>

#include <algorithm>

namespace vornel {

namespace fs = std::filesystem;

namespace {

bool isShareable(const FileTreeSnapshot::Entry &entry)
{
    return entry.fileDigest && entry.size > 0 && entry.relativePath != SkillFiles::manifest;
}

} // namespace

SharedFiles::SharedFiles(std::vector<fs::path> entries, std::function<Tree(const fs::path &)> read)
    : m_unread(std::move(entries)), m_read(std::move(read))
{
    std::ranges::reverse(m_unread);
    readNext();
}

/// One with hidden files has nothing to share: it is a folder that somebody has worked in, and may still have
/// open.
void SharedFiles::readNext()
{
    if (m_unread.empty())
        return;
    const Tree entry = m_read(m_unread.back());
    m_unread.pop_back();
    if (!entry || !entry->isWhole)
        return;
    for (const FileTreeSnapshot::Entry &file : entry->entries) {
        if (isShareable(file))
            m_byDigest.try_emplace(*file.fileDigest, entry->url(file));
    }
}

std::string SharedFiles::find(const FileTreeSnapshot::Entry &file)
{
    constexpr std::int64_t much = 65'536;
    if (!isShareable(file))
        return {};
    auto found = m_byDigest.find(*file.fileDigest);
    while (found == m_byDigest.end() && file.size >= much && !m_unread.empty()) {
        readNext();
        found = m_byDigest.find(*file.fileDigest);
    }
    return found == m_byDigest.end() ? std::string() : found->second;
}

} // namespace vornel

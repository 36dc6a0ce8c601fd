#include "EntryTrees.h"

#include <VORNELInfrastructure/Tree/SecureFileTree.h>

namespace vornel {

namespace fs = std::filesystem;

void EntryTrees::beginOperation()
{
    const std::scoped_lock lock(m_mutex);
    m_trees.clear();
}

EntryTrees::Tree EntryTrees::read(const FileSystem &files, const fs::path &entry, FileDigests &known)
{
    constexpr std::size_t most = 64;
    {
        const std::scoped_lock lock(m_mutex);
        if (const auto found = m_trees.find(entry); found != m_trees.end())
            return found->second;
    }
    auto tree =
        std::make_shared<FileTreeSnapshot>(SecureFileTree::snapshot(files, entry, TreeFilter::all, &known));
    const std::scoped_lock lock(m_mutex);
    if (m_trees.size() >= most)
        m_trees.clear();
    return m_trees.insert_or_assign(entry, std::move(tree)).first->second;
}

bool EntryTrees::isRead(const fs::path &entry)
{
    const std::scoped_lock lock(m_mutex);
    return m_trees.contains(entry);
}

} // namespace vornel

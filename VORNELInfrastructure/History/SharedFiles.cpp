#include "SharedFiles.h"

#include <VORNELInfrastructure/Disk/BestEffort.h>
#include <VORNELInfrastructure/Skills/SkillFiles.h>
#include <VORNELInfrastructure/Tree/SecureFileTree.h>
#include <VORNELInfrastructure/Tree/SharingCopy.h>

namespace vornel {

namespace fs = std::filesystem;

namespace {

bool isShareable(const FileTreeSnapshot::Entry &entry)
{
    return entry.fileDigest && entry.size > 0 && entry.relativePath != SkillFiles::manifest;
}

} // namespace

SharedFiles::SharedFiles(FileSystem &files, const fs::path &history, std::span<const std::string> entries,
                         FileDigests &known)
    : m_files(files)
{
    for (const std::string &entry : entries) {
        bestEffort([&] {
            const auto tree = SecureFileTree::snapshot(files, history / entry, TreeFilter::all, &known);
            for (const FileTreeSnapshot::Entry &file : tree.entries) {
                if (tree.isWhole && isShareable(file))
                    m_byDigest.try_emplace(*file.fileDigest, tree.url(file));
            }
        });
    }
}

void SharedFiles::copyTree(const FileTreeSnapshot &source, const fs::path &destination) const
{
    copySharing(m_files, source, destination, [this](const FileTreeSnapshot::Entry &entry) {
        const auto same = isShareable(entry) ? m_byDigest.find(*entry.fileDigest) : m_byDigest.end();
        return same == m_byDigest.end() ? fs::path() : same->second;
    });
}

} // namespace vornel

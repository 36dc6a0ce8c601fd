#include "FileRenewal.h"

#include <VORNELInfrastructure/Disk/FileOperations.h>
#include <VORNELInfrastructure/Skills/SkillFiles.h>

namespace vornel {

namespace {

using Entry = FileTreeSnapshot::Entry;

bool haveSamePlace(const Entry &one, const Entry &other)
{
    return one.relativePath == other.relativePath && one.kind == other.kind;
}

/// The only entry that another tree has with other bytes; nothing where there are more, or other paths.
const Entry *onlyChange(const FileTreeSnapshot &before, const FileTreeSnapshot &after)
{
    if (before.entries.size() != after.entries.size())
        return nullptr;
    const Entry *changed = nullptr;
    for (std::size_t index = 0; index < after.entries.size(); ++index) {
        const Entry &entry = after.entries[index];
        if (!haveSamePlace(before.entries[index], entry))
            return nullptr;
        if (before.entries[index].fileDigest == entry.fileDigest)
            continue;
        if (changed != nullptr)
            return nullptr;
        changed = &entry;
    }
    return changed;
}

} // namespace

std::optional<FileRenewal> FileRenewal::between(const FileSystem &files, const FileTreeSnapshot &copy,
                                                const FileTreeSnapshot &content)
{
    const Entry *changed = onlyChange(copy, content);
    if (changed == nullptr || changed->relativePath.find('/') != std::string::npos)
        return std::nullopt;
    return FileRenewal(copy.url(*changed), readFile(files, content.url(*changed), SkillFiles::sizeLimit));
}

void FileRenewal::run(FileSystem &files) const
{
    replaceFile(files, m_path, m_bytes, Durability::Now);
}

} // namespace vornel

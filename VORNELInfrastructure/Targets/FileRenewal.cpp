#include "FileRenewal.h"

#include <VORNELCore/Errors/VORNELWorkspaceError.h>
#include <VORNELCore/Records/SerializedForms.h>
#include <VORNELCore/Records/SkillFiles.h>
#include <VORNELInfrastructure/Disk/FileOperations.h>
#include <VORNELInfrastructure/Tree/Sha256.h>

using namespace Qt::StringLiterals;

namespace vornel {

using Entry = FileTreeSnapshot::Entry;

namespace {

bool haveSamePlace(const Entry &one, const Entry &other)
{
    return one.relativePath == other.relativePath && one.kind == other.kind;
}

/// The index of the only entry that two trees have with other bytes; nothing where there are more, or other
/// paths.
std::optional<std::size_t> onlyChange(const FileTreeSnapshot &before, const FileTreeSnapshot &after)
{
    if (before.entries.size() != after.entries.size())
        return std::nullopt;
    std::optional<std::size_t> changed;
    for (std::size_t index = 0; index < after.entries.size(); ++index) {
        const Entry &entry = after.entries[index];
        if (!haveSamePlace(before.entries[index], entry))
            return std::nullopt;
        if (before.entries[index].fileDigest == entry.fileDigest)
            continue;
        if (changed)
            return std::nullopt;
        changed = index;
    }
    return changed;
}

std::string digestOf(const QByteArray &bytes)
{
    Sha256 hash;
    hash.update(bytes);
    return hash.finish();
}

} // namespace

std::optional<FileRenewal> FileRenewal::between(const FileSystem &files, const FileTreeSnapshot &copy,
                                                const FileTreeSnapshot &content)
{
    const std::optional<std::size_t> changed = onlyChange(copy, content);
    if (!changed || content.entries[*changed].relativePath.find('/') != std::string::npos)
        return std::nullopt;
    const Entry &former = copy.entries[*changed];
    return FileRenewal(copy.url(former), former.fileDigest.value_or(std::string()),
                       readFile(files, content.url(content.entries[*changed]), SkillFiles::sizeLimit));
}

void FileRenewal::run(FileSystem &files) const
{
    if (digestOf(readFile(files, m_path, SkillFiles::sizeLimit)) != m_formerDigest)
        throw VORNELWorkspaceError::integrityFailure(pathText(m_path.filename()) +
                                                     u" vient d’être modifié dans la copie."_s);
    replaceFile(files, m_path, m_bytes, Durability::Now);
}

} // namespace vornel

#include "TreeDifferences.h"

#include <map>

namespace vornel {

using Entry = FileTreeSnapshot::Entry;

namespace {

/// The entries of both sides that have one path. A file and a folder of one name are two paths.
struct Counterparts
{
    const Entry *before = nullptr;
    const Entry *after = nullptr;
};

std::string shownPath(const Entry &entry)
{
    return entry.kind == Entry::Kind::directory ? entry.relativePath + '/' : entry.relativePath;
}

std::optional<FileChange> changeOf(const Counterparts &entry)
{
    if (entry.before == nullptr)
        return FileChange::added;
    if (entry.after == nullptr)
        return FileChange::removed;
    return entry.before->fileDigest == entry.after->fileDigest ? std::nullopt
                                                               : std::optional(FileChange::changed);
}

} // namespace

QList<FileDifference> differences(const FileTreeSnapshot &before, const FileTreeSnapshot &after)
{
    std::map<std::string, Counterparts> entries;
    for (const Entry &entry : before.entries)
        entries[shownPath(entry)].before = &entry;
    for (const Entry &entry : after.entries)
        entries[shownPath(entry)].after = &entry;

    QList<FileDifference> found;
    for (const auto &[path, entry] : entries) {
        const std::optional<FileChange> change = changeOf(entry);
        if (!change)
            continue;
        const QString shown = QString::fromStdString(path);
        // A folder isn't listed itself where something in it is.
        if (!found.isEmpty() && found.last().relativePath.endsWith(u'/') &&
            shown.startsWith(found.last().relativePath))
            found.removeLast();
        found.append({shown, *change});
    }
    return found;
}

} // namespace vornel

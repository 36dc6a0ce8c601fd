#include "VersionInspector.h"

#include <VORNELCore/Errors/VORNELWorkspaceError.h>
#include <VORNELCore/Records/SerializedForms.h>
#include <VORNELInfrastructure/Disk/BestEffort.h>
#include <VORNELInfrastructure/Skills/SkillFolderStore.h>
#include <VORNELInfrastructure/Tree/ParallelMap.h>
#include <VORNELInfrastructure/Tree/SecureFileTree.h>
#include <VORNELInfrastructure/Tree/TreeDifferences.h>

#include <algorithm>
#include <tuple>

using namespace Qt::StringLiterals;

namespace vornel {

namespace fs = std::filesystem;

namespace {

/// Of two versions of one second, what a revision has replaced went after it was made.
bool isNewer(const DatedVersion &a, const DatedVersion &b)
{
    const auto key = [](const DatedVersion &dated) {
        const KeptVersion &version = dated.version;
        return std::tuple(dated.date, version.revision, version.kind, version.replacedAt, version.entry);
    };
    return key(a) > key(b);
}

/// When a version was made or replaced, as it was noted.
std::optional<QDateTime> notedDate(const Workspace &workspace, const fs::path &history,
                                   const KeptVersion &version)
{
    if (version.replacedAt)
        return instantAt(version.replacedAt->toSecsSinceEpoch());
    std::optional<QDateTime> date;
    bestEffort([&] {
        if (version.kind == HistoryKind::revision)
            date = SkillFolderStore(workspace).readManifest(history / version.entry).updatedAt;
    });
    return date;
}

/// When its folder came to its place.
std::optional<QDateTime> folderDate(const Workspace &workspace, const fs::path &history,
                                    const KeptVersion &version)
{
    std::optional<QDateTime> date;
    bestEffort([&] { date = workspace.files.changedAt(workspace.files.openFolder(history), version.entry); });
    return date;
}

/// An earlier version noted no date of what was replaced: that of its folder stands for it.
DatedVersion dated(const Workspace &workspace, const fs::path &history, const KeptVersion &version)
{
    if (const auto noted = notedDate(workspace, history, version))
        return {version, *noted, true};
    const std::optional<QDateTime> date = folderDate(workspace, history, version);
    return {version, date.value_or(currentInstant()), date && version.kind == HistoryKind::replaced};
}

/// Marks the newest of the versions that are the library's present revision and content, if there is one.
void markCurrent(QList<HistoryEntry> &entries, qint64 revision, const QString &digest)
{
    const auto current = std::ranges::find_if(entries, [&](const HistoryEntry &entry) {
        return entry.origin == VersionOrigin::library && entry.revision == revision && entry.digest == digest;
    });
    if (current != entries.end())
        current->isCurrent = true;
}

} // namespace

std::vector<DatedVersion> datedVersions(const Workspace &workspace, const QUuid &id)
{
    const fs::path history = workspace.config.historyOf(id);
    std::vector<DatedVersion> versions =
        parallelMap(SkillHistory(workspace).versions(id),
                    [&](const KeptVersion &version) { return dated(workspace, history, version); });
    std::ranges::sort(versions, isNewer);
    return versions;
}

QList<HistoryEntry> VersionInspector::history(const QUuid &id) const
{
    const SkillRecord skill = record(id);
    const auto found = parallelMap(datedVersions(m_workspace, id),
                                   [&](const DatedVersion &dated) { return entryOf(id, dated); });
    QList<HistoryEntry> entries(found.begin(), found.end());
    bestEffort([&] { // where its folder can't be read, none is what it holds
        markCurrent(entries, skill.manifest.revision, QString::fromStdString(presentContent(skill).digest));
    });
    return entries;
}

HistoryEntry VersionInspector::entryOf(const QUuid &id, const DatedVersion &dated) const
{
    const KeptVersion &version = dated.version;
    return {.entry = QString::fromStdString(version.entry),
            .kind = version.kind,
            .revision = version.revision,
            .origin = version.origin,
            .date = dated.date,
            .digest = QString::fromStdString(m_history.contentOf(id, version.entry).value_or(std::string()))};
}

HistoryComparison VersionInspector::compare(const QUuid &id, const QString &entry,
                                            const std::optional<QString> &other) const
{
    const SkillRecord skill = record(id);
    const FileTreeSnapshot version = contentOf(skill, entry);
    const FileTreeSnapshot against = other ? contentOf(skill, *other) : presentContent(skill);
    return {.files = version.relativeFiles(), .differences = differences(version, against)};
}

std::optional<QByteArray> VersionInspector::readFile(const QUuid &id, const QString &entry,
                                                     const QString &relativePath) const
{
    return SkillFolderStore(m_workspace).fileBytes(folderOf(record(id), entry), relativePath);
}

FileTreeSnapshot VersionInspector::contentOf(const SkillRecord &skill, const QString &entry) const
{
    return SecureFileTree::snapshot(m_workspace.files, folderOf(skill, entry), TreeFilter::excludingManifest);
}

FileTreeSnapshot VersionInspector::presentContent(const SkillRecord &skill) const
{
    return SecureFileTree::snapshot(m_workspace.files, skill.folder, TreeFilter::excludingManifest);
}

SkillRecord VersionInspector::record(const QUuid &id) const
{
    const QList<SkillRecord> trashed = trashedManifests(m_workspace);
    const auto hasID = [&id](const SkillRecord &skill) { return skill.manifest.id == id; };
    const auto found = std::ranges::find_if(trashed, hasID);
    return found == trashed.end() ? activeRecord(m_workspace, id) : *found;
}

/// Only the name of a version leads into the history.
fs::path VersionInspector::folderOf(const SkillRecord &skill, const QString &entry) const
{
    const auto version = KeptVersion::named(entry.toStdString());
    if (version) {
        fs::path folder = m_workspace.config.historyOf(skill.manifest.id) / version->entry;
        if (m_workspace.files.kindAt(folder))
            return folder;
    }
    throw VORNELWorkspaceError::integrityFailure(
        u"L’historique de %1 n’a pas de version %2."_s.arg(skill.manifest.slug, entry));
}

} // namespace vornel

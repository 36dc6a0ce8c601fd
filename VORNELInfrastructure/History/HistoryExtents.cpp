#include "HistoryExtents.h"

#include "DiskUsage.h"
#include "VersionInspector.h"

#include <VORNELCore/Records/SerializedForms.h>
#include <VORNELInfrastructure/Disk/BestEffort.h>
#include <VORNELInfrastructure/Skills/SkillFolderStore.h>
#include <VORNELInfrastructure/Tree/ParallelMap.h>

#include <algorithm>
#include <map>
#include <numeric>
#include <span>

namespace vornel {

namespace {

constexpr qint64 secondsOfADay = 86'400;

/// The library's own; all of them count as needed where there are fewer than two.
qint64 lastButOneRevision(const std::vector<DatedVersion> &versions)
{
    std::set<qint64> revisions;
    for (const DatedVersion &dated : versions) {
        if (dated.version.origin == VersionOrigin::library)
            revisions.insert(dated.version.revision);
    }
    return revisions.size() < 2 ? 0 : *std::next(revisions.rbegin());
}

/// When the revisions were made, as far as that is known.
std::map<qint64, QDateTime> revisionDates(const std::vector<DatedVersion> &versions)
{
    std::map<qint64, QDateTime> dates;
    for (const DatedVersion &dated : versions) {
        if (dated.version.kind == HistoryKind::revision && dated.isCertain) {
            QDateTime &date = dates.try_emplace(dated.version.revision, dated.date).first->second;
            date = std::min(date, dated.date);
        }
    }
    return dates;
}

/// When a version ceased to be what stood in its place: a revision when the next one was made. Nothing where
/// that isn't known, or hasn't come.
std::optional<QDateTime> replacementOf(const DatedVersion &dated,
                                       const std::map<qint64, QDateTime> &revisions)
{
    if (dated.version.kind == HistoryKind::replaced)
        return dated.date;
    const auto next = revisions.upper_bound(dated.version.revision);
    return next == revisions.end() ? std::nullopt : std::optional(next->second);
}

bool isNeeded(const KeptVersion &version, qint64 oldestNeeded)
{
    return version.revision >= oldestNeeded &&
           (version.origin == VersionOrigin::library || version.entry.starts_with("merged-"));
}

HistoryExtent sum(const std::vector<HistoryExtent> &extents)
{
    return std::accumulate(extents.begin(), extents.end(), HistoryExtent(),
                           [](const HistoryExtent &a, const HistoryExtent &b) {
                               return HistoryExtent{a.entries + b.entries, a.size + b.size};
                           });
}

} // namespace

HistoryExtent HistoryExtents::all() const
{
    return sum(parallelMap(skills(), [this](const QUuid &id) {
        std::set<std::string> entries;
        for (const KeptVersion &version : SkillHistory(m_workspace).versions(id))
            entries.insert(version.entry);
        return extentOf(id, entries);
    }));
}

HistoryExtent HistoryExtents::prune(const HistoryPruning &pruning) const
{
    std::vector<HistoryExtent> gone;
    for (const QUuid &id : skills()) {
        const std::set<std::string> entries = unwanted(id, pruning);
        gone.push_back(extentOf(id, entries));
        for (const std::string &entry : entries) {
            if (!pruning.isRehearsal)
                SkillFolderStore(m_workspace).discard(m_workspace.config.historyOf(id) / entry);
        }
    }
    return sum(gone);
}

/// Those that have a history: active, in the trash, or left by a crash.
QList<QUuid> HistoryExtents::skills() const
{
    QList<QUuid> ids;
    const Folder histories = m_workspace.files.openFolder(m_workspace.config.history());
    for (const FolderEntry &entry : m_workspace.files.list(histories)) {
        const auto id = uuidFromText(QString::fromStdString(entry.name));
        if (id && entry.kind == FileKind::Directory)
            ids.append(*id);
    }
    return ids;
}

/// What the library has held at its last two revisions always stays, and what a merge has joined since: they
/// tell who has changed a copy, and what it was made from. So does what can't be dated, beside those to keep.
std::set<std::string> HistoryExtents::unwanted(const QUuid &id, const HistoryPruning &pruning) const
{
    const QDateTime now = QDateTime::currentDateTimeUtc();
    std::vector<DatedVersion> versions = datedVersions(m_workspace, id);
    const qint64 oldestNeeded = lastButOneRevision(versions);
    const std::map<qint64, QDateTime> revisions = revisionDates(versions);
    std::erase_if(versions, [](const DatedVersion &dated) { return !dated.isCertain; });
    const auto kept = std::min(static_cast<std::size_t>(std::max(pruning.keep, qint64(0))), versions.size());
    std::set<std::string> entries;
    for (const DatedVersion &dated : std::span(versions).subspan(kept)) {
        const std::optional<QDateTime> replaced = replacementOf(dated, revisions);
        const bool isOld = replaced && replaced->secsTo(now) >= pruning.days * secondsOfADay;
        if (isOld && !isNeeded(dated.version, oldestNeeded))
            entries.insert(dated.version.entry);
    }
    return entries;
}

HistoryExtent HistoryExtents::extentOf(const QUuid &id, const std::set<std::string> &entries) const
{
    DiskUsage usage(m_workspace.files);
    bestEffort([&] {
        const Folder history = m_workspace.files.openFolder(m_workspace.config.historyOf(id));
        for (const std::string &entry : entries)
            usage.add({history, entry});
    });
    return {static_cast<qint64>(entries.size()), usage.bytes()};
}

} // namespace vornel

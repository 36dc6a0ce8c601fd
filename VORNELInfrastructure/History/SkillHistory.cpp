#include "SkillHistory.h"

#include <VORNELCore/Records/SerializedForms.h>
#include <VORNELCore/Records/SkillFiles.h>
#include <VORNELInfrastructure/Disk/BestEffort.h>
#include <VORNELInfrastructure/Disk/FileOperations.h>
#include <VORNELInfrastructure/Disk/TreeOperations.h>
#include <VORNELInfrastructure/Recovery/SetAsideName.h>
#include <VORNELInfrastructure/Skills/SkillFolderStore.h>
#include <VORNELInfrastructure/Tree/ParallelMap.h>
#include <VORNELInfrastructure/Tree/SecureFileTree.h>

#include <algorithm>
#include <ranges>

using namespace Qt::StringLiterals;

namespace vornel {

namespace fs = std::filesystem;

namespace {

/// Whether a folder is kept under this name that was replaced.
bool isOfReplaced(const std::string &name)
{
    return name.starts_with("replaced-") || name.starts_with("merged-");
}

/// The names in a history; none where there is no history.
std::vector<std::string> namesIn(const FileSystem &files, const fs::path &history)
{
    std::vector<std::string> names;
    if (!files.kindAt(history))
        return names;
    for (const FolderEntry &entry : files.list(files.openFolder(history)))
        names.push_back(entry.name);
    return names;
}

/// What is looked at first: the revisions, from the latest on, then what was replaced.
bool comesFirst(const KeptVersion &a, const KeptVersion &b)
{
    return a.kind == b.kind ? a.revision > b.revision : a.kind == HistoryKind::revision;
}

} // namespace

void StagedEntry::complete()
{
    copy.copyRest(source);
    Unflushed made = copy.made();
    const fs::path &stage = folder.stage.path();
    if (made.folders.back() != stage)
        made.folders.push_back(stage);
    flush(files, made);
}

fs::path SkillHistory::placeFor(const QUuid &id, const QString &name) const
{
    return m_config.historyOf(id) / pathFromText(name);
}

FileTreeSnapshot SkillHistory::add(const SkillManifest &manifest, const fs::path &skillURL) const
{
    FileTreeSnapshot content = read(skillURL, TreeFilter::all);
    keep(placeFor(manifest.id, revisionEntry(manifest.revision)), content);
    return content;
}

StagedEntry SkillHistory::begin(const SkillManifest &manifest, const FileTreeSnapshot &content) const
{
    return begin(placeFor(manifest.id, revisionEntry(manifest.revision)), content);
}

StagedFolder SkillHistory::stageFirst(const SkillManifest &manifest, const fs::path &skillURL) const
{
    StagedFolder history{Stage(m_files, m_config.staging()), {.path = m_config.historyOf(manifest.id)}};
    const fs::path entry = history.stage.path() / pathFromText(revisionEntry(manifest.revision));
    SecureFileTree::copyTree(m_files, skillURL, entry, TreeFilter::all);
    return history;
}

void SkillHistory::keep(const fs::path &place, const FileTreeSnapshot &content) const
{
    StagedEntry entry = begin(place, content);
    entry.complete();
    entry.put();
}

StagedEntry SkillHistory::begin(const fs::path &place, const FileTreeSnapshot &content) const
{
    const fs::path history = place.parent_path();
    const bool isFirst = !m_files.kindAt(history);
    StagedFolder folder{Stage(m_files, m_config.staging()), {.path = isFirst ? history : place}};
    const fs::path &stage = folder.stage.path();
    SharingCopy copy = sharingCopy(content, history, isFirst ? stage / place.filename() : stage);
    return {std::move(folder), std::move(copy), m_files, content.root};
}

SharingCopy SkillHistory::sharingCopy(const FileTreeSnapshot &content, const fs::path &history,
                                      const fs::path &destination) const
{
    SharedFiles shared = sharedFiles(history);
    SharingCopy copy(m_files, destination);
    copy.share(content.entries, [&](const FileTreeSnapshot::Entry &entry) { return shared.find(entry); });
    for (const EntryStatus &file : copy.shared())
        m_digests.follow(file);
    return copy;
}

fs::path SkillHistory::placeForReplaced(const SkillManifest &manifest, VersionOrigin origin) const
{
    return placeFor(manifest.id, replacedEntry(origin, manifest.revision));
}

FileTreeSnapshot SkillHistory::read(const fs::path &folder, TreeFilter filter) const
{
    return SecureFileTree::snapshot(m_files, folder, filter, &m_digests);
}

/// Nothing for an entry that can't be read, which then counts as holding nothing. What has come out of a
/// target is read anew each time: somebody may still stand in it.
EntryTrees::Tree SkillHistory::treeOf(const fs::path &entry) const
{
    EntryTrees::Tree tree;
    bestEffort([&] {
        const auto version = KeptVersion::named(entry.filename());
        if (version && version->kind == HistoryKind::revision)
            tree = m_entries.read(m_files, entry, m_digests);
        else
            tree = std::make_shared<FileTreeSnapshot>(read(entry, TreeFilter::all));
    });
    return tree;
}

std::optional<std::string> SkillHistory::digestOf(const fs::path &entry, TreeFilter filter) const
{
    const EntryTrees::Tree tree = treeOf(entry);
    if (!tree)
        return std::nullopt;
    return filter == TreeFilter::all ? tree->digest : tree->contentDigest();
}

std::vector<KeptVersion> SkillHistory::versions(const QUuid &id) const
{
    return versionsIn(m_config.historyOf(id));
}

std::vector<KeptVersion> SkillHistory::versionsIn(const fs::path &history) const
{
    std::vector<KeptVersion> versions;
    for (const std::string &name : namesIn(m_files, history)) {
        if (auto version = KeptVersion::named(name))
            versions.push_back(std::move(*version));
    }
    std::ranges::stable_sort(versions, comesFirst);
    return versions;
}

std::vector<KeptVersion> SkillHistory::ownVersions(const QUuid &id) const
{
    std::vector<KeptVersion> own = versions(id);
    std::erase_if(own, [](const KeptVersion &version) { return version.origin != VersionOrigin::library; });
    std::ranges::stable_sort(own, std::ranges::greater{}, &KeptVersion::revision);
    return own;
}

std::vector<KeptVersion> SkillHistory::ownVersions(const SkillManifest &manifest) const
{
    std::vector<KeptVersion> own = ownVersions(manifest.id);
    std::erase_if(own, [&](const KeptVersion &version) { return version.revision != manifest.revision; });
    return own;
}

/// Those that have been read are asked first.
bool SkillHistory::anyHolds(const QUuid &id, std::vector<KeptVersion> versions, TreeFilter filter,
                            const std::string &digest) const
{
    const fs::path history = m_config.historyOf(id);
    std::ranges::stable_partition(
        versions, [&](const KeptVersion &version) { return m_entries.isRead(history / version.entry); });
    return std::ranges::any_of(versions, [&](const KeptVersion &version) {
        return digestOf(history / version.entry, filter) == digest;
    });
}

bool SkillHistory::holdsRevision(const SkillManifest &manifest, const FileTreeSnapshot &content) const
{
    return anyHolds(manifest.id, ownVersions(manifest), TreeFilter::all, content.digest);
}

bool SkillHistory::holds(const QUuid &id, const std::string &digest) const
{
    return anyHolds(id, versions(id), TreeFilter::excludingManifest, digest);
}

std::optional<std::string> SkillHistory::contentOf(const QUuid &id, const std::string &entry) const
{
    return digestOf(m_config.historyOf(id) / entry, TreeFilter::excludingManifest);
}

FormerFolder SkillHistory::keepRevision(const SkillManifest &manifest, const fs::path &skillURL) const
{
    const std::vector<KeptVersion> own = ownVersions(manifest);
    FileTreeSnapshot content;
    together([&] { content = read(skillURL, TreeFilter::all); },
             [&] { // which is what holds it as a rule
                 if (!own.empty())
                     treeOf(placeFor(manifest.id, QString::fromStdString(own.front().entry)));
             });
    if (!anyHolds(manifest.id, own, TreeFilter::all, content.digest)) {
        const bool isRevision = own.empty();
        keep(isRevision ? placeFor(manifest.id, revisionEntry(manifest.revision))
                        : placeForReplaced(manifest, VersionOrigin::library),
             content);
    }
    const fs::path keptAs = content.isWhole ? fs::path() : placeForReplaced(manifest, VersionOrigin::library);
    return {std::move(content), keptAs};
}

void SkillHistory::keepMerged(const SkillManifest &manifest, VersionOrigin origin, const std::string &result,
                              const fs::path &copy) const
{
    const fs::path place = placeFor(manifest.id, mergedEntry(origin, result, manifest.revision));
    keep(place, read(copy, TreeFilter::excludingManifest));
}

bool SkillHistory::wasMerged(const QUuid &id, VersionOrigin origin, const std::string &result,
                             const std::string &digest) const
{
    const std::string prefix = mergedPrefix(origin, result).toStdString();
    std::vector<KeptVersion> merged = versions(id);
    std::erase_if(merged, [&](const KeptVersion &version) { return !version.entry.starts_with(prefix); });
    return anyHolds(id, merged, TreeFilter::excludingManifest, digest);
}

bool SkillHistory::keepIfChanged(const SkillManifest &manifest, VersionOrigin origin, const fs::path &former,
                                 const FileTreeSnapshot &asRead, TreeFilter filter) const
{
    bool isAsRead = false;
    bestEffort([&] {
        const FileTreeSnapshot now = read(former, filter);
        isAsRead = now.digest == asRead.digest && (now.isWhole || !asRead.isWhole);
    });
    if (isAsRead)
        return false;
    const fs::path place = placeForReplaced(manifest, origin);
    createFolders(m_files, place.parent_path(), Durability::Now);
    unshare(m_files, m_files.openFolder(former), SkillFiles::sizeLimit);
    bestEffort([&] { flushTrees(m_files, {{former}}); });
    moveTree(m_files, former, place);
    return true;
}

/// The folder came from a target, and somebody may still stand in it: nothing in it may share a file. So a
/// copy that does takes its place, where that can be done in one step. One with hidden entries stays, since
/// nobody copies these.
void SkillHistory::shareReplaced(const fs::path &entry) const noexcept
{
    const auto digestOfAll = [this](const fs::path &folder) {
        return SecureFileTree::snapshot(m_files, folder, TreeFilter::all).digest;
    };
    bestEffort([&] {
        const FileTreeSnapshot content = SecureFileTree::snapshot(m_files, entry, TreeFilter::all);
        const auto version = KeptVersion::named(entry.filename());
        if (!content.isWhole || !version)
            return;
        const Stage copy(m_files, m_config.staging());
        SharingCopy made = sharingCopy(content, entry.parent_path(), copy.path());
        made.copyRest(content.root);
        if (digestOfAll(copy.path()) != content.digest)
            return;
        flush(m_files, made.made());
        exchange(copy.path(), entry);
        if (digestOfAll(copy.path()) != content.digest) // somebody has written there meanwhile
            moveTree(m_files, copy.path(),
                     entry.parent_path() / pathFromText(replacedEntry(version->origin, version->revision)));
    });
}

void SkillHistory::exchange(const fs::path &stage, const fs::path &entry) const
{
    const Folder staging = m_files.openFolder(stage.parent_path());
    const Folder history = m_files.openFolder(entry.parent_path());
    m_files.rename({staging, stage.filename()}, {history, entry.filename()}, RenameMode::Exchange);
    flushNames(m_files, history);
}

/// Of the latest of the library's own versions: what changes from one to the next is little. Where they can't
/// be listed, nothing is shared.
SharedFiles SkillHistory::sharedFiles(const fs::path &history) const
{
    constexpr std::size_t most = 2;
    std::vector<KeptVersion> own;
    bestEffort([&] { own = versionsIn(history); });
    std::erase_if(own, [](const KeptVersion &version) { return version.origin != VersionOrigin::library; });
    std::ranges::sort(own, std::ranges::greater{}, [](const KeptVersion &version) {
        return std::pair(version.revision, version.replacedAt);
    });
    std::vector<fs::path> latest;
    for (const KeptVersion &version : own | std::views::take(most))
        latest.push_back(history / version.entry);
    return {std::move(latest), [this](const fs::path &entry) { return treeOf(entry); }};
}

void SkillHistory::remove(const QUuid &id, const fs::path &skillURL) const
{
    const fs::path history = m_config.historyOf(id);
    if (!m_files.kindAt(history))
        return;
    const SkillFolderStore store(m_files, m_config);
    QString slug;
    bestEffort([&] { slug = store.readManifest(skillURL).slug; });
    std::vector<std::string> replaced = namesIn(m_files, history);
    const auto [first, last] = std::ranges::partition(replaced, isOfReplaced);
    // First, so that what stays shares less with others, and takes less room to be moved.
    for (const std::string &name : std::ranges::subrange(first, last))
        store.discard(history / name);
    replaced.erase(first, last);
    for (const std::string &name : replaced)
        moveApart(m_files, history / name,
                  m_config.recovery() / pathFromText(nameOfReplaced(QString::fromStdString(name), slug)),
                  m_config.staging());
    store.discard(history);
}

} // namespace vornel

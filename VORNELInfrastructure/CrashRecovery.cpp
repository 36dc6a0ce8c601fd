#include "CrashRecovery.h"

#include "BestEffort.h"
#include "SkillFolderStore.h"
#include "SkillRecords.h"
#include "TreeOperations.h"

#include <VORNELCore/SerializedForms.h>
#include <VORNELCore/VORNELWorkspaceError.h>
#include <VORNELCore/WorkspaceValidation.h>

#include <QRegularExpression>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vornel {

namespace fs = std::filesystem;

namespace {

/// The canonical folders in recovery whose manifest agrees with their name, the latest revision first.
QList<SkillRecord> parkedCanonicalFolders(const Workspace &workspace)
{
    static const QRegularExpression shape(uR"(\A[0-9A-F-]{36}-canonical-(.+)\z)"_s);
    const SkillFolderStore store(workspace);
    const fs::path recovery = workspace.config.recovery();
    QList<SkillRecord> parked;
    for (const FolderEntry &entry : workspace.files.list(workspace.files.openFolder(recovery))) {
        const auto match = shape.match(QString::fromStdString(entry.name));
        if (!match.hasMatch() || entry.kind != FileKind::Directory)
            continue;
        bestEffort([&] {
            const SkillManifest manifest = store.readManifest(recovery / entry.name);
            WorkspaceValidation::validateSlug(manifest.slug);
            if (manifest.slug == match.captured(1))
                parked.append({manifest, recovery / entry.name});
        });
    }
    std::ranges::sort(parked, std::ranges::greater{},
                      [](const SkillRecord &record) { return record.manifest.revision; });
    return parked;
}

void bringBackSwappedFolders(const Workspace &workspace)
{
    const SkillFolderStore store(workspace);
    for (const SkillRecord &parked : parkedCanonicalFolders(workspace)) {
        const fs::path canonical = workspace.config.canonical(parked.manifest.slug);
        if (workspace.files.kindAt(canonical)) {
            // The swap had succeeded; once the history holds this revision too, the folder is of no use.
            if (store.hasSnapshot(parked.manifest))
                bestEffort([&] { store.discard(parked.url); });
        } else if (!workspace.files.kindAt(workspace.config.trashed(parked.manifest.id))) {
            moveTree(workspace.files, parked.url, canonical);
        }
    }
}

bool isInLibraryOrTrash(const Workspace &workspace, const QUuid &id)
{
    const auto hasID = [&id](const SkillRecord &record) { return record.manifest.id == id; };
    return workspace.files.kindAt(workspace.config.trashed(id)) ||
           std::ranges::any_of(activeManifests(workspace), hasID);
}

/// A skill that is being deleted for good is staged under its identifier until its history is gone.
void finishDeletion(const Workspace &workspace, const std::string &stage)
{
    const auto id = uuidFromText(QString::fromStdString(stage));
    if (!id || !workspace.files.kindAt(workspace.config.historyOf(*id)) || isInLibraryOrTrash(workspace, *id))
        return;
    SkillFolderStore(workspace).discard(workspace.config.historyOf(*id));
}

void removeAbandonedStages(const Workspace &workspace)
{
    const fs::path staging = workspace.config.staging();
    for (const FolderEntry &entry : workspace.files.list(workspace.files.openFolder(staging))) {
        bestEffort([&] {
            finishDeletion(workspace, entry.name);
            removeTree(workspace.files, staging / entry.name);
        });
    }
}

/// How far below a folder something is looked for.
enum class Reach { Entries, EntriesOfEntries };

/// A move to another volume, or a write, that was cut short leaves its unfinished part under such a name.
bool isUnfinished(const std::string &name)
{
    static const QRegularExpression shape(uR"(\A\.[0-9A-F-]{36}\.tmp\z)"_s);
    return name.starts_with('.') && shape.match(QString::fromStdString(name)).hasMatch();
}

void removeUnfinishedParts(FileSystem &files, const Folder &folder, Reach reach)
{
    for (const FolderEntry &entry : files.list(folder)) {
        bestEffort([&] {
            if (isUnfinished(entry.name))
                removeTree(files, {folder, entry.name});
            else if (reach == Reach::EntriesOfEntries && entry.kind == FileKind::Directory)
                removeUnfinishedParts(files, files.openFolder(folder, entry.name), Reach::Entries);
        });
    }
}

void removeUnfinishedParts(const Workspace &workspace, const fs::path &folder, Reach reach)
{
    bestEffort([&] {
        if (workspace.files.kindAt(folder) == FileKind::Directory)
            removeUnfinishedParts(workspace.files, workspace.files.openFolder(folder), reach);
    });
}

void removeUnfinishedParts(const Workspace &workspace)
{
    const Configuration &config = workspace.config;
    for (const fs::path &folder : {config.bookkeeping(), config.recovery(), config.claude, config.codex})
        removeUnfinishedParts(workspace, folder, Reach::Entries);
    // A skill's manifest is also rewritten where it stands.
    for (const fs::path &folder : {config.skills(), config.trash()})
        removeUnfinishedParts(workspace, folder, Reach::EntriesOfEntries);
}

} // namespace

void discardParkedFolders(const Workspace &workspace, const QUuid &id)
{
    for (const SkillRecord &parked : parkedCanonicalFolders(workspace)) {
        if (parked.manifest.id == id)
            SkillFolderStore(workspace).discard(parked.url);
    }
}

void recoverFromCrash(const Workspace &workspace)
{
    bringBackSwappedFolders(workspace);
    removeAbandonedStages(workspace);
    removeUnfinishedParts(workspace);
}

} // namespace vornel

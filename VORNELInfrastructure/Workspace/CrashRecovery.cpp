#include "CrashRecovery.h"

#include "UnfinishedParts.h"
#include "WorkspaceBootstrap.h"

#include <VORNELCore/Errors/VORNELWorkspaceError.h>
#include <VORNELCore/Errors/WorkspaceValidation.h>
#include <VORNELCore/Records/SerializedForms.h>
#include <VORNELInfrastructure/Disk/BestEffort.h>
#include <VORNELInfrastructure/Disk/TreeOperations.h>
#include <VORNELInfrastructure/History/SkillHistory.h>
#include <VORNELInfrastructure/Skills/SkillFolderStore.h>
#include <VORNELInfrastructure/Skills/SkillRecords.h>
#include <VORNELInfrastructure/Skills/SkillRename.h>
#include <VORNELInfrastructure/Tree/SecureFileTree.h>

#include <QRegularExpression>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vornel {

namespace fs = std::filesystem;

namespace {

/// The canonical folders that were backed up while they were replaced, the latest revision first.
QList<SkillRecord> canonicalBackups(const Workspace &workspace)
{
    static const QRegularExpression shape(uR"(\A[0-9A-F-]{36}-canonical-(.+)\z)"_s);
    const SkillFolderStore store(workspace);
    const fs::path recovery = workspace.config.recovery();
    QList<SkillRecord> backups;
    for (const FolderEntry &entry : workspace.files.list(workspace.files.openFolder(recovery))) {
        const auto match = shape.match(QString::fromStdString(entry.name));
        if (!match.hasMatch() || entry.kind != FileKind::Directory)
            continue;
        bestEffort([&] {
            const SkillManifest manifest = store.readManifest(recovery / entry.name);
            WorkspaceValidation::validateSlug(manifest.slug);
            if (manifest.slug == match.captured(1))
                backups.append({manifest, recovery / entry.name});
        });
    }
    std::ranges::sort(backups, std::ranges::greater{},
                      [](const SkillRecord &record) { return record.manifest.revision; });
    return backups;
}

FileTreeSnapshot wholeContent(const Workspace &workspace, const SkillRecord &backup)
{
    return SecureFileTree::snapshot(workspace.files, backup.folder, TreeFilter::all);
}

/// Once the folder has been replaced and the history holds the former revision, its backup is of no use. It
/// stays where another skill stands in its place: then it may be the only copy of its own skill.
bool isReplaced(const Workspace &workspace, const SkillRecord &backup, const FileTreeSnapshot &content)
{
    const fs::path canonical = workspace.config.canonical(backup.manifest.slug);
    return SkillFolderStore(workspace).readManifest(canonical).id == backup.manifest.id &&
           SkillHistory(workspace).holdsRevision(backup.manifest, content);
}

void discardIfReplaced(const Workspace &workspace, const SkillRecord &backup)
{
    const FileTreeSnapshot content = wholeContent(workspace, backup);
    if (!isReplaced(workspace, backup, content))
        return;
    if (content.isWhole)
        SkillFolderStore(workspace).discard(backup.folder);
    else
        moveApart(workspace.files, backup.folder,
                  SkillHistory(workspace).placeForReplaced(backup.manifest, VersionOrigin::library),
                  workspace.config.staging());
}

bool isInLibraryOrTrash(const Workspace &workspace, const QUuid &id)
{
    const auto hasID = [&id](const SkillRecord &record) { return record.manifest.id == id; };
    return workspace.files.kindAt(workspace.config.trashed(id)) ||
           std::ranges::any_of(activeManifests(workspace), hasID);
}

/// Whether a backup has no folder in its place, and its skill is nowhere else, under another slug for
/// example.
bool isMissing(const Workspace &workspace, const SkillManifest &backup)
{
    return !workspace.files.kindAt(workspace.config.canonical(backup.slug)) &&
           !isInLibraryOrTrash(workspace, backup.id);
}

/// A skill that is being deleted for good is staged under its identifier until its history is gone.
void finishDeletion(const Workspace &workspace, const std::string &stage)
{
    const auto id = uuidFromText(QString::fromStdString(stage));
    if (!id)
        return;
    if (workspace.files.kindAt(workspace.config.historyOf(*id)) && !isInLibraryOrTrash(workspace, *id))
        SkillHistory(workspace).remove(*id, workspace.config.staging() / stage);
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

} // namespace

void discardBackups(const Workspace &workspace, const QUuid &id)
{
    for (const SkillRecord &backup : canonicalBackups(workspace)) {
        if (backup.manifest.id == id)
            SkillFolderStore(workspace).discard(backup.folder);
    }
}

void restoreSkills(const Workspace &workspace)
{
    SkillRename(workspace).finish();
    for (const SkillRecord &backup : canonicalBackups(workspace)) {
        const fs::path canonical = workspace.config.canonical(backup.manifest.slug);
        if (isMissing(workspace, backup.manifest))
            moveTree(workspace.files, backup.folder, canonical);
        else
            bestEffort([&] { discardIfReplaced(workspace, backup); });
    }
}

std::set<std::string> backupsToSettle(const Workspace &workspace)
{
    std::set<std::string> names;
    for (const SkillRecord &backup : canonicalBackups(workspace)) {
        bestEffort([&] {
            if (isMissing(workspace, backup.manifest) ||
                isReplaced(workspace, backup, wholeContent(workspace, backup)))
                names.insert(backup.folder.filename());
        });
    }
    return names;
}

bool hasHalfRenamedSkills(const Workspace &workspace)
{
    return SkillRename(workspace).isUnfinished();
}

void finishRenames(const Workspace &workspace)
{
    bestEffort([&] {
        refuseNewerWorkspace(workspace);
        SkillRename(workspace).finish();
    });
}

bool needsRecovery(const Workspace &workspace)
{
    const fs::path staging = workspace.config.staging();
    return !workspace.files.list(workspace.files.openFolder(staging)).empty() ||
           !canonicalBackups(workspace).isEmpty() || hasHalfRenamedSkills(workspace) ||
           !unfinishedParts(workspace).empty();
}

void recoverFromCrash(const Workspace &workspace)
{
    restoreSkills(workspace);
    removeAbandonedStages(workspace);
    for (const fs::path &part : unfinishedParts(workspace))
        bestEffort([&] { removeTree(workspace.files, part); });
}

} // namespace vornel

#include "SkillTrash.h"

#include "SchemaVersion.h"
#include "TrashMoments.h"

#include <VORNELCore/Errors/VORNELWorkspaceError.h>
#include <VORNELCore/Records/SerializedForms.h>
#include <VORNELInfrastructure/Disk/BestEffort.h>
#include <VORNELInfrastructure/Disk/TreeOperations.h>
#include <VORNELInfrastructure/History/SkillHistory.h>
#include <VORNELInfrastructure/Targets/TargetSynchronizer.h>
#include <VORNELInfrastructure/Workspace/CrashRecovery.h>
#include <VORNELInfrastructure/Workspace/Locating.h>

using namespace Qt::StringLiterals;

namespace vornel {

namespace fs = std::filesystem;

void SkillTrash::moveToTrash(const QSet<QUuid> &ids) const
{
    const QList<SkillRecord> active = activeManifests(m_workspace);
    for (const QUuid &id : inTextOrder(ids)) {
        const SkillRecord &skill = findRecord(active, id);
        locating(m_workspace, skill.manifest.slug, [&] { moveToTrash(skill); });
    }
}

void SkillTrash::moveToTrash(const SkillRecord &skill) const
{
    refuseNewer(skill.manifest);
    refuseDoubledSlug(skill.manifest);
    TargetSynchronizer(m_workspace).removeCopies(skill);
    const fs::path destination = m_workspace.config.trashed(skill.manifest.id);
    if (m_workspace.files.kindAt(destination))
        throw VORNELWorkspaceError::integrityFailure(u"Le skill existe déjà dans la corbeille."_s);
    TrashMoments(m_workspace).note(skill.manifest.id);
    moveTree(m_workspace.files, skill.folder, destination);
    m_workspace.failedSyncTargets.remove(skill.manifest.id);
    SkillChange &change = m_workspace.changes[skill.manifest.id];
    change.revision = skill.manifest.revision;
    change.move = SkillChange::Move::toTrash;
}

/// The trash, like the library, holds a slug once: a second one would make every overview fail.
void SkillTrash::refuseDoubledSlug(const SkillManifest &manifest) const
{
    for (const SkillRecord &other : trashedBut(manifest.id)) {
        if (other.manifest.slug == manifest.slug)
            throw VORNELWorkspaceError::integrityFailure(
                u"La corbeille contient déjà une autre compétence %1, «\u00A0%2\u00A0»\u00A0: "
                "supprimez-la d’abord définitivement."_s.arg(manifest.slug, other.manifest.displayName));
    }
}

QList<SkillRecord> SkillTrash::trashedBut(const QUuid &id) const
{
    QList<SkillRecord> others = trashedManifests(m_workspace);
    others.removeIf([&id](const SkillRecord &record) { return record.manifest.id == id; });
    return others;
}

void SkillTrash::restore(const QUuid &id) const
{
    TargetSynchronizer(m_workspace).synchronize(takeOut(id));
}

void SkillTrash::restore(const QUuid &id, const TakenOut &copies) const
{
    TargetSynchronizer(m_workspace).putBack(takeOut(id).manifest, copies);
}

/// Moves the skill from the trash into the library.
SkillRecord SkillTrash::takeOut(const QUuid &id) const
{
    FileSystem &files = m_workspace.files;
    const fs::path source = m_workspace.config.trashed(id);
    if (!files.kindAt(source))
        throw VORNELWorkspaceError::skillNotFound(id);
    SkillManifest manifest = m_store.readManifest(source);
    if (manifest.id != id)
        throw VORNELWorkspaceError::integrityFailure(
            u"L’identifiant de la corbeille ne correspond pas au manifeste."_s);
    ensureUnique(manifest.slug, activeManifests(m_workspace));
    ensureUnique(manifest.slug, trashedBut(id));

    manifest.updatedAt = currentInstant();
    m_store.writeManifest(manifest, source, Durability::Now);
    SkillRecord skill{manifest, m_workspace.config.canonical(manifest.slug)};
    locating(m_workspace, source, [&] { bringBack(source, skill); });
    TrashMoments(m_workspace).forget(id);
    m_workspace.changes[id] = {.revision = manifest.revision, .move = SkillChange::Move::fromTrash};
    return skill;
}

void SkillTrash::bringBack(const fs::path &source, const SkillRecord &skill) const
{
    moveTree(m_workspace.files, source, skill.folder);
    try {
        SkillHistory(m_workspace).add(skill.manifest, skill.folder);
    } catch (...) {
        bestEffort([&] { moveTree(m_workspace.files, skill.folder, source); });
        throw;
    }
}

void SkillTrash::deletePermanently(const QUuid &id) const
{
    if (!m_workspace.files.kindAt(m_workspace.config.trashed(id)))
        throw VORNELWorkspaceError::skillNotFound(id);
    remove(id);
}

void SkillTrash::empty() const
{
    for (const SkillRecord &skill : trashedManifests(m_workspace))
        locating(m_workspace, skill.manifest.slug, [&] { remove(skill.manifest.id); });
}

QHash<QUuid, QDateTime> SkillTrash::dates() const
{
    QHash<QUuid, QDateTime> dates;
    const TrashMoments moments(m_workspace);
    const Folder trash = m_workspace.files.openFolder(m_workspace.config.trash());
    for (const FolderEntry &entry : m_workspace.files.list(trash)) {
        const auto id = uuidFromText(QString::fromStdString(entry.name));
        auto date = id ? moments.of(*id) : std::nullopt;
        if (id && !date) // an older version noted none
            date = m_workspace.files.changedAt(trash, entry.name);
        if (date)
            dates.insert(*id, *date);
    }
    return dates;
}

void SkillTrash::remove(const QUuid &id) const
{
    m_workspace.failedSyncTargets.remove(id);
    discardBackups(m_workspace, id);
    const Configuration &config = m_workspace.config;
    // The staged folder has the skill's identifier for its name: when this is cut short, the next start finds
    // by it the history to delete.
    const fs::path condemned = config.staging() / pathFromText(uuidText(id));
    moveTree(m_workspace.files, config.trashed(id), condemned);
    TrashMoments(m_workspace).forget(id);
    SkillHistory(m_workspace).remove(id, condemned);
    removeTree(m_workspace.files, condemned);
}

} // namespace vornel

#include "SkillRecords.h"

#include "SkillFolderStore.h"

#include <VORNELCore/Errors/VORNELWorkspaceError.h>
#include <VORNELCore/Errors/WorkspaceValidation.h>
#include <VORNELCore/Library/CategoryRules.h>
#include <VORNELCore/Library/LocaleText.h>
#include <VORNELCore/Records/SerializedForms.h>
#include <VORNELInfrastructure/Tree/ParallelMap.h>
#include <VORNELInfrastructure/Workspace/Locating.h>

#include <algorithm>
#include <iterator>
#include <string_view>
#include <utility>

using namespace Qt::StringLiterals;

namespace vornel {

namespace fs = std::filesystem;

namespace {

std::vector<std::string> skillFolders(const Workspace &workspace, const Folder &directory)
{
    std::vector<std::string> names;
    for (FolderEntry &entry : workspace.files.list(directory)) {
        if (entry.name.starts_with('.'))
            continue;
        if (const fs::path place = fs::path(directory.path) / entry.name;
            entry.kind == FileKind::SymbolicLink)
            failAt(workspace, place, VORNELWorkspaceError::symlinkUnsupported(pathText(place)));
        if (entry.kind == FileKind::Directory)
            names.push_back(std::move(entry.name));
    }
    return names;
}

/// Refuses two records with the same `part`.
template <typename Part>
void refuseDoubled(const Workspace &workspace, const std::vector<SkillRecord> &records,
                   Part SkillManifest::*part, const QString &reason)
{
    QSet<Part> seen;
    for (const SkillRecord &record : records) {
        if (seen.contains(record.manifest.*part))
            failAt(workspace, record.folder, VORNELWorkspaceError::integrityFailure(reason));
        seen.insert(record.manifest.*part);
    }
}

QList<SkillRecord> records(const Workspace &workspace, const fs::path &place)
{
    const SkillFolderStore store(workspace);
    const Folder directory = workspace.files.openFolder(place);
    auto read = parallelMap(skillFolders(workspace, directory), [&](const std::string &name) {
        return locating(workspace, place / name, [&] {
            SkillRecord record{store.readManifest(directory, name), place / name};
            WorkspaceValidation::validateSlug(record.manifest.slug);
            record.manifest.category = CategoryRules::normalizedCategory(record.manifest.category);
            return record;
        });
    });
    refuseDoubled(workspace, read, &SkillManifest::id, u"Un identifiant de skill est dupliqué."_s);
    refuseDoubled(workspace, read, &SkillManifest::slug, u"Un slug de skill est dupliqué."_s);
    return {std::move_iterator(read.begin()), std::move_iterator(read.end())};
}

std::string_view folderName(const SkillRecord &record)
{
    const std::string_view folder = record.folder.native();
    return folder.substr(folder.rfind('/') + 1);
}

} // namespace

QList<SkillRecord> activeManifests(const Workspace &workspace)
{
    QList<SkillRecord> active = records(workspace, workspace.config.skills());
    for (const SkillRecord &record : std::as_const(active)) {
        if (folderName(record) != record.manifest.slug.toStdString())
            failAt(workspace, record.folder,
                   VORNELWorkspaceError::integrityFailure(
                       u"Le dossier canonique ne correspond pas au slug du manifeste."_s));
    }
    return active;
}

QList<SkillRecord> trashedManifests(const Workspace &workspace)
{
    QList<SkillRecord> trashed = records(workspace, workspace.config.trash());
    for (const SkillRecord &record : std::as_const(trashed)) {
        if (folderName(record) != uuidText(record.manifest.id).toStdString())
            failAt(workspace, record.folder,
                   VORNELWorkspaceError::integrityFailure(
                       u"Le dossier de corbeille ne correspond pas à l’identifiant du manifeste."_s));
    }
    return trashed;
}

QList<SkillRecord> byName(const QList<SkillRecord> &records)
{
    struct Keyed
    {
        QCollatorSortKey key;
        const SkillRecord *record;
    };
    std::vector<Keyed> order = parallelMap(records, [](const SkillRecord &record) {
        return Keyed{LocaleText::sortKey(record.manifest.displayName), &record};
    });
    std::ranges::stable_sort(order, [](const Keyed &a, const Keyed &b) { return a.key < b.key; });
    QList<SkillRecord> sorted;
    sorted.reserve(records.size());
    for (const Keyed &next : order)
        sorted.append(*next.record);
    return sorted;
}

const SkillRecord &findRecord(const QList<SkillRecord> &records, const QUuid &id)
{
    const auto found =
        std::ranges::find(records, id, [](const SkillRecord &record) { return record.manifest.id; });
    if (found == records.end())
        throw VORNELWorkspaceError::skillNotFound(id);
    return *found;
}

SkillRecord activeRecord(const Workspace &workspace, const QUuid &id)
{
    return findRecord(activeManifests(workspace), id);
}

QList<QUuid> inTextOrder(const QSet<QUuid> &ids)
{
    QList<QUuid> ordered(ids.begin(), ids.end());
    std::ranges::sort(ordered, {}, uuidText);
    return ordered;
}

void ensureUnique(const QString &slug, const QList<SkillRecord> &taken)
{
    const auto hasSlug = [&slug](const SkillRecord &record) {
        return record.manifest.slug.compare(slug, Qt::CaseInsensitive) == 0;
    };
    if (std::ranges::any_of(taken, hasSlug))
        throw VORNELWorkspaceError::duplicateSlug(slug);
}

} // namespace vornel

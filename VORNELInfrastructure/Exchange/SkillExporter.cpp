#include "SkillExporter.h"

#include "ArchiveBudget.h"
#include "ArchivePath.h"
#include "NewFile.h"
#include "ZipWriter.h"

#include <VORNELCore/Errors/VORNELWorkspaceError.h>
#include <VORNELCore/Records/SerializedForms.h>
#include <VORNELCore/Records/SkillFiles.h>
#include <VORNELInfrastructure/Disk/FileOperations.h>
#include <VORNELInfrastructure/Skills/SkillRecords.h>
#include <VORNELInfrastructure/Tree/SecureFileTree.h>
#include <VORNELInfrastructure/Tree/Sha256.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vornel {

namespace fs = std::filesystem;

namespace {

using Entry = FileTreeSnapshot::Entry;

/// The skills that are named, each once, by slug.
QList<SkillRecord> recordsOf(const Workspace &workspace, const QList<QUuid> &ids)
{
    const QList<SkillRecord> active = activeManifests(workspace);
    QList<SkillRecord> named;
    for (const QUuid &id : QSet<QUuid>(ids.begin(), ids.end()))
        named.append(findRecord(active, id));
    std::ranges::sort(named, {}, [](const SkillRecord &skill) { return skill.manifest.slug; });
    return named;
}

QByteArray bytesOf(const FileSystem &files, const FileTreeSnapshot &tree, const Entry &entry)
{
    QByteArray bytes = readFile(files, tree.url(entry), SkillFiles::sizeLimit);
    Sha256 hash;
    hash.update(bytes);
    if (hash.finish() != entry.fileDigest)
        throw VORNELWorkspaceError::integrityFailure(u"Un fichier a changé pendant l’export\u00A0: "_s +
                                                     pathText(tree.url(entry)));
    return bytes;
}

/// Writes no more, and no other names, than can be added again.
void addSkill(ZipWriter &zip, ArchiveBudget &budget, const Workspace &workspace, const SkillRecord &skill)
{
    const FileTreeSnapshot tree =
        SecureFileTree::snapshot(workspace.files, skill.folder, TreeFilter::excludingManifest);
    const std::string slug = skill.manifest.slug.toStdString();
    budget.takeEntry();
    zip.addFolder(slug);
    for (const Entry &entry : tree.entries) {
        const std::string path = archivePath(slug + '/' + entry.relativePath);
        budget.takeEntry();
        budget.takeBytes(entry.size);
        if (entry.kind == Entry::Kind::directory)
            zip.addFolder(path);
        else
            zip.addFile(path, bytesOf(workspace.files, tree, entry));
    }
}

} // namespace

SkillExport exportSkills(const Workspace &workspace, const QList<QUuid> &ids, const fs::path &file)
{
    const QList<SkillRecord> skills = recordsOf(workspace, ids);
    NewFile archive(workspace.files, file);
    ZipWriter zip(workspace.files, archive.file());
    ArchiveBudget budget;
    SkillExport written{.file = pathText(file)};
    for (const SkillRecord &skill : skills) {
        addSkill(zip, budget, workspace, skill);
        written.slugs.append(skill.manifest.slug);
    }
    zip.finish();
    archive.finish();
    written.size = zip.size();
    return written;
}

} // namespace vornel

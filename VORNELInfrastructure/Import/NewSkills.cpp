#include "NewSkills.h"

#include "IgnoredSkills.h"

#include <VORNELCore/Errors/WorkspaceValidation.h>
#include <VORNELCore/Records/SerializedForms.h>
#include <VORNELCore/Records/SkillFiles.h>
#include <VORNELInfrastructure/Disk/BestEffort.h>
#include <VORNELInfrastructure/Skills/SkillRecords.h>

#include <QSet>

#include <algorithm>

namespace vornel {

namespace {

/// The names of the folders in one that could be skills', in their order.
QStringList skillNames(const FileSystem &files, const std::filesystem::path &root)
{
    QStringList names;
    for (const FolderEntry &entry : files.list(files.openFolder(root))) {
        const QString name = QString::fromStdString(entry.name);
        bestEffort([&] {
            WorkspaceValidation::validateSlug(name);
            if (entry.kind == FileKind::Directory)
                names.append(name);
        });
    }
    names.sort();
    return names;
}

/// May fail with what a look at the file throws.
bool hasText(const Workspace &workspace, TargetKind target, const QString &name)
{
    const auto text = workspace.config.target(target) / pathFromText(name) / SkillFiles::text;
    return workspace.files.kindAt(text) == FileKind::Regular;
}

/// Drops the names that no longer hide anything: the library has them, or no such folder is left. Should one
/// come again, it is another.
void dropSettled(const Workspace &workspace, IgnoredNames &names)
{
    const QStringList known = skillNames(workspace.files, workspace.config.skills());
    for (const TargetKind target : allCases<TargetKind>()) {
        names.of(target).removeIf([&](const QString &name) {
            bool isSettled = known.contains(name);
            bestEffort([&] { isSettled = isSettled || !hasText(workspace, target, name); });
            return isSettled;
        });
    }
}

QSet<QString> trashedSlugs(const Workspace &workspace)
{
    QSet<QString> slugs;
    bestEffort([&] {
        for (const SkillRecord &record : trashedManifests(workspace))
            slugs.insert(record.manifest.slug);
    });
    return slugs;
}

} // namespace

QList<NewSkill> newSkills(const Workspace &workspace)
{
    const QStringList known = skillNames(workspace.files, workspace.config.skills());
    IgnoredNames ignored;
    bestEffort([&] { ignored = IgnoredSkills(workspace).names(); });
    QList<NewSkill> found;
    for (const TargetKind target : allCases<TargetKind>()) {
        bestEffort([&] {
            refuseLinkedRoot(workspace.files, workspace.config.target(target));
            for (const QString &name : skillNames(workspace.files, workspace.config.target(target))) {
                if (known.contains(name) || ignored.of(target).contains(name))
                    continue;
                bestEffort([&] {
                    if (hasText(workspace, target, name))
                        found.append({target, name});
                });
            }
        });
    }
    if (found.isEmpty())
        return found;
    const QSet<QString> trashed = trashedSlugs(workspace);
    for (NewSkill &skill : found)
        skill.isTrashed = trashed.contains(skill.slug);
    return found;
}

void ignoreNewSkills(const Workspace &workspace, const QList<NewSkill> &skills)
{
    const IgnoredSkills store(workspace);
    IgnoredNames names = store.names();
    dropSettled(workspace, names);
    for (const NewSkill &skill : skills) {
        if (QStringList &ofTarget = names.of(skill.target); !ofTarget.contains(skill.slug))
            ofTarget.append(skill.slug);
    }
    store.keep(names);
}

void forgetSettledSkills(const Workspace &workspace)
{
    const IgnoredSkills store(workspace);
    const IgnoredNames before = store.names();
    IgnoredNames names = before;
    dropSettled(workspace, names);
    if (names != before)
        store.keep(names);
}

} // namespace vornel

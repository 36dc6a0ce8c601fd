#include "CopyInspector.h"

#include "CopyDrift.h"
#include "TargetFolder.h"

#include <VORNELCore/Errors/ErrorMessage.h>
#include <VORNELCore/Records/SerializedForms.h>
#include <VORNELInfrastructure/Disk/BestEffort.h>
#include <VORNELInfrastructure/Skills/SkillFolderStore.h>
#include <VORNELInfrastructure/Skills/SkillRecords.h>
#include <VORNELInfrastructure/Tree/ParallelMap.h>
#include <VORNELInfrastructure/Tree/SecureFileTree.h>
#include <VORNELInfrastructure/Tree/TreeDifferences.h>

namespace vornel {

namespace fs = std::filesystem;

QList<CopyInspection> CopyInspector::inspect(const QUuid &id) const
{
    const SkillRecord skill = activeRecord(m_workspace, id);
    const FileTreeSnapshot canonical = contentOf(skill.folder);
    CopyDrift drift(m_workspace, skill.manifest);
    QList<CopyInspection> inspections;
    for (const TargetKind target : allCases<TargetKind>())
        inspections.append(inspect(skill.manifest, canonical, target, drift));
    return inspections;
}

FileTreeSnapshot CopyInspector::contentOf(const fs::path &folder) const
{
    return SecureFileTree::snapshot(m_workspace.files, folder, TreeFilter::excludingManifest);
}

CopyInspection CopyInspector::inspect(const SkillManifest &manifest, const FileTreeSnapshot &canonical,
                                      TargetKind target, CopyDrift &drift) const
{
    CopyInspection inspection{.target = target,
                              .state = SyncState::missing,
                              .path = m_workspace.config.target(target) / pathFromText(manifest.slug)};
    std::optional<TargetFolder> folder;
    try {
        folder.emplace(m_workspace, target);
        if (const auto copy = folder->snapshot(manifest.slug.toStdString())) {
            inspection.differences = differences(canonical, *copy);
            inspection.state = inspection.differences.isEmpty() ? SyncState::inSync : SyncState::drifted;
            if (inspection.state == SyncState::drifted)
                inspection.drift = drift.of(copy->digest);
        }
    } catch (const std::exception &error) {
        inspection.state = SyncState::failed;
        inspection.reason = errorMessage(error);
        inspection.isUnreadable = folder && folder->isUsable();
        return inspection;
    }
    const TargetReasons failed = m_workspace.failedSyncTargets.value(manifest.id);
    if (failed.contains(target)) {
        inspection.state = SyncState::failed;
        inspection.reason = failed.value(target);
    }
    return inspection;
}

QHash<QUuid, QList<CopyInspection>> CopyInspector::wrongCopies() const
{
    QHash<QUuid, QList<CopyInspection>> wrong;
    if (m_workspace.foundCopies.isEmpty() && m_workspace.failedSyncTargets.isEmpty())
        return wrong;
    const QList<SkillRecord> active = activeManifests(m_workspace);
    const auto copies = parallelMap(active, [this](const SkillRecord &skill) { return wrongCopies(skill); });
    for (qsizetype index = 0; index < active.size(); ++index) {
        const QList<CopyInspection> &ofSkill = copies[static_cast<std::size_t>(index)];
        if (!ofSkill.isEmpty())
            wrong.insert(active.at(index).manifest.id, ofSkill);
    }
    return wrong;
}

QList<CopyInspection> CopyInspector::wrongCopies(const SkillRecord &skill) const
{
    const SkillManifest &manifest = skill.manifest;
    const CopyFindings found = m_workspace.foundCopies.value(manifest.id);
    TargetReasons reasons = m_workspace.failedSyncTargets.value(manifest.id);
    reasons.insert(found.unreadable);
    CopyDrift drift(m_workspace, manifest);
    QList<CopyInspection> wrong;
    for (const TargetKind target : allCases<TargetKind>()) {
        const bool hasFailed = reasons.contains(target);
        if (!hasFailed && !found.drifted.contains(target))
            continue;
        wrong.append({.target = target,
                      .state = hasFailed ? SyncState::failed : SyncState::drifted,
                      .drift = hasFailed ? Drift::none : drift.of(found.drifted.value(target)),
                      .reason = reasons.value(target),
                      .path = m_workspace.config.target(target) / pathFromText(manifest.slug),
                      .isUnreadable =
                          found.unreadable.contains(target) && TargetFolder(m_workspace, target).isUsable()});
        if (wrong.last().drift == Drift::edited) // told without its files where they can't be read any more
            bestEffort([&] {
                wrong.last().differences =
                    inspect(manifest, contentOf(skill.folder), target, drift).differences;
            });
    }
    return wrong;
}

std::optional<QByteArray> CopyInspector::readFile(const QUuid &id, std::optional<TargetKind> target,
                                                  const QString &relativePath) const
{
    const SkillRecord skill = activeRecord(m_workspace, id);
    const fs::path folder =
        target ? m_workspace.config.target(*target) / pathFromText(skill.manifest.slug) : skill.folder;
    return SkillFolderStore(m_workspace).fileBytes(folder, relativePath);
}

} // namespace vornel

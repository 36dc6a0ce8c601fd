#include "TargetSynchronizer.h"

#include "BestEffort.h"
#include "SecureFileTree.h"

#include <VORNELCore/ErrorMessage.h>
#include <VORNELCore/SerializedForms.h>
#include <VORNELCore/VORNELWorkspaceError.h>
#include <VORNELCore/WorkspaceValidation.h>

using namespace Qt::StringLiterals;

namespace vornel {

namespace fs = std::filesystem;

void TargetSynchronizer::synchronize(const SkillRecord &skill) const
{
    forEachTarget(skill.manifest.id, [&](TargetKind kind) { installTargetCopy(skill, kind); });
}

void TargetSynchronizer::removeCopies(const SkillRecord &skill) const
{
    forEachTarget(skill.manifest.id, [&](TargetKind kind) { removeTargetCopy(skill.manifest.slug, kind); });
}

template <typename Action>
void TargetSynchronizer::forEachTarget(const QUuid &id, const Action &action) const
{
    QMap<TargetKind, QString> failed;
    for (const TargetKind kind : allCases<TargetKind>()) {
        try {
            action(kind);
        } catch (const std::exception &error) {
            failed.insert(kind, errorMessage(error));
        }
    }
    if (failed.isEmpty()) {
        m_workspace.failedSyncTargets.remove(id);
        return;
    }
    m_workspace.failedSyncTargets.insert(id, failed);
    throw VORNELWorkspaceError::partialSync(failed.keys());
}

fs::path TargetSynchronizer::recoveryPlace(const QString &label, TargetKind kind, const QString &slug) const
{
    const QString name = uuidText(QUuid::createUuid()) + label + rawValue(kind) + u'-' + slug;
    return m_workspace.config.recovery() / pathFromText(name);
}

void TargetSynchronizer::installTargetCopy(const SkillRecord &skill, TargetKind kind) const
{
    FileSystem &files = m_workspace.files;
    const auto snapshot = [&files](const fs::path &folder) {
        return SecureFileTree::snapshot(files, folder, TreeFilter::excludingManifest);
    };

    const fs::path &root = m_workspace.config.target(kind);
    refuseLinkedRoot(files, root);
    files.createFolders(root);

    const fs::path destination = root / pathFromText(skill.manifest.slug);
    const std::string canonical = snapshot(skill.url).digest;
    const bool isOccupied = files.kindAt(destination).has_value();
    if (isOccupied && snapshot(destination).digest == canonical)
        return;

    const fs::path stage = m_store.makeStage();
    SecureFileTree::copyTree(files, skill.url, stage, TreeFilter::excludingManifest);

    const fs::path parked = recoveryPlace(u"-"_s, kind, skill.manifest.slug);
    bool isParked = false;
    try {
        if (isOccupied)
            files.move(destination, parked);
        isParked = isOccupied;
        m_store.publish(stage, destination);
    } catch (...) {
        if (isParked)
            bestEffort([&] { files.move(parked, destination); });
        bestEffort([&] { files.removeTree(stage); });
        throw;
    }
    if (isParked)
        bestEffort([&] { m_store.discard(parked); });
}

void TargetSynchronizer::removeTargetCopy(const QString &slug, TargetKind kind) const
{
    WorkspaceValidation::validateSlug(slug);
    FileSystem &files = m_workspace.files;
    const fs::path &root = m_workspace.config.target(kind);
    if (!files.kindAt(root))
        return;
    refuseLinkedRoot(files, root);

    const fs::path destination = root / pathFromText(slug);
    const std::optional<FileKind> kindThere = files.kindAt(destination);
    if (!kindThere)
        return;
    if (*kindThere == FileKind::SymbolicLink)
        throw VORNELWorkspaceError::symlinkUnsupported(pathText(destination));
    files.move(destination, recoveryPlace(u"-removed-"_s, kind, slug));
}

} // namespace vornel

#include "TargetSynchronizer.h"

#include "BestEffort.h"
#include "FileOperations.h"
#include "ParallelMap.h"
#include "SecureFileTree.h"
#include "TreeOperations.h"

#include <VORNELCore/ErrorMessage.h>
#include <VORNELCore/SerializedForms.h>
#include <VORNELCore/VORNELWorkspaceError.h>
#include <VORNELCore/WorkspaceValidation.h>

using namespace Qt::StringLiterals;

namespace vornel {

namespace fs = std::filesystem;

/// One skill on its way into one target.
struct TargetSynchronizer::Install
{
    const SkillRecord *skill;
    TargetKind kind;
    std::optional<Publication> copy = {}; ///< nothing once the target's copy is right
    std::exception_ptr failure = nullptr; ///< why it could not be staged
};

namespace {

QString reasonOf(const std::exception_ptr &failure)
try {
    std::rethrow_exception(failure);
} catch (const std::exception &error) {
    return errorMessage(error);
}

} // namespace

void TargetSynchronizer::synchronize(const SkillRecord &skill) const
{
    synchronizeAll({skill});
    const QMap<TargetKind, QString> failed = m_workspace.failedSyncTargets.value(skill.manifest.id);
    if (!failed.isEmpty())
        throw VORNELWorkspaceError::partialSync(failed.keys());
}

QSet<TargetKind> TargetSynchronizer::synchronizeAll(const QList<SkillRecord> &skills) const
{
    std::vector<Install> installs;
    for (const SkillRecord &skill : skills) {
        for (const TargetKind kind : allCases<TargetKind>())
            installs.push_back({&skill, kind});
    }
    parallelFor(installs.size(), [&](std::size_t index) { stageCopy(installs[index]); });
    publishCopies(installs);

    QHash<QUuid, QMap<TargetKind, QString>> failed;
    QSet<TargetKind> kinds;
    for (const Install &install : installs) {
        const std::exception_ptr &failure = install.copy ? install.copy->failure : install.failure;
        if (failure) {
            failed[install.skill->manifest.id].insert(install.kind, reasonOf(failure));
            kinds.insert(install.kind);
        }
    }
    for (const SkillRecord &skill : skills)
        remember(skill.manifest.id, failed.value(skill.manifest.id));
    return kinds;
}

void TargetSynchronizer::removeCopies(const SkillRecord &skill) const
{
    QMap<TargetKind, QString> failed;
    for (const TargetKind kind : allCases<TargetKind>()) {
        try {
            removeTargetCopy(skill.manifest.slug, kind);
        } catch (const std::exception &error) {
            failed.insert(kind, errorMessage(error));
        }
    }
    remember(skill.manifest.id, failed);
    if (!failed.isEmpty())
        throw VORNELWorkspaceError::partialSync(failed.keys());
}

void TargetSynchronizer::remember(const QUuid &id, const QMap<TargetKind, QString> &failed) const
{
    if (failed.isEmpty())
        m_workspace.failedSyncTargets.remove(id);
    else
        m_workspace.failedSyncTargets.insert(id, failed);
}

fs::path TargetSynchronizer::recoveryPlace(const QString &label, TargetKind kind, const QString &slug) const
{
    const QString name = uuidText(QUuid::createUuid()) + label + rawValue(kind) + u'-' + slug;
    return m_workspace.config.recovery() / pathFromText(name);
}

void TargetSynchronizer::stageCopy(Install &install) const
try {
    FileSystem &files = m_workspace.files;
    const SkillRecord &skill = *install.skill;
    const auto digestOf = [&files](const fs::path &folder) {
        return SecureFileTree::snapshot(files, folder, TreeFilter::excludingManifest).digest;
    };

    const fs::path &root = m_workspace.config.target(install.kind);
    refuseLinkedRoot(files, root);
    createFolders(files, root, Durability::Now);

    const fs::path destination = root / pathFromText(skill.manifest.slug);
    const std::string canonical = digestOf(skill.url);
    const bool isOccupied = files.kindAt(destination).has_value();
    if (isOccupied && digestOf(destination) == canonical)
        return;

    const fs::path stage = m_store.makeStage();
    SecureFileTree::copyTree(files, skill.url, stage, TreeFilter::excludingManifest);
    install.copy = {stage, destination,
                    isOccupied ? recoveryPlace(u"-"_s, install.kind, skill.manifest.slug) : fs::path()};
} catch (...) {
    install.failure = std::current_exception();
}

void TargetSynchronizer::publishCopies(std::vector<Install> &installs) const
{
    std::vector<Publication *> copies;
    for (Install &install : installs) {
        if (install.copy)
            copies.push_back(&*install.copy);
    }
    publish(m_workspace.files, copies);
    for (const Publication *copy : copies) {
        if (copy->failure)
            bestEffort([&] { removeTree(m_workspace.files, copy->staged); });
        else if (!copy->former.empty())
            bestEffort([&] { m_store.discard(copy->former); });
    }
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
    moveTree(files, destination, recoveryPlace(u"-removed-"_s, kind, slug));
}

} // namespace vornel

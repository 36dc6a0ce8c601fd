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

#include <ranges>

using namespace Qt::StringLiterals;

namespace vornel {

namespace fs = std::filesystem;

/// One skill on its way into the targets.
struct TargetSynchronizer::Install
{
    const SkillRecord *skill;
    std::map<TargetKind, Publication> copies = {}; ///< for targets where the copy isn't right
    Failures failures = {};
};

namespace {

QString reasonOf(const std::exception_ptr &failure)
try {
    std::rethrow_exception(failure);
} catch (const std::exception &error) {
    return errorMessage(error);
}

/// Runs `action` for every target; what it threw for which.
template <typename Action>
std::map<TargetKind, std::exception_ptr> failuresOf(const Action &action)
{
    std::map<TargetKind, std::exception_ptr> failures;
    for (const TargetKind kind : allCases<TargetKind>()) {
        if (std::exception_ptr failure = failureOf([&] { action(kind); }))
            failures.emplace(kind, std::move(failure));
    }
    return failures;
}

QList<TargetKind> kindsOf(const std::map<TargetKind, std::exception_ptr> &failures)
{
    const auto kinds = failures | std::views::keys;
    return {kinds.begin(), kinds.end()};
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
    const Failures unusable = failuresOf([this](TargetKind kind) { prepareRoot(kind); });
    std::vector<Install> installs = parallelMap(skills, [&](const SkillRecord &skill) {
        Install install{&skill};
        stageCopies(install, unusable);
        return install;
    });
    publishCopies(installs);

    QSet<TargetKind> failed;
    for (const Install &install : installs) {
        remember(install.skill->manifest.id, install.failures);
        for (const TargetKind kind : install.failures | std::views::keys)
            failed.insert(kind);
    }
    return failed;
}

void TargetSynchronizer::removeCopies(const SkillRecord &skill) const
{
    const Failures failures =
        failuresOf([&](TargetKind kind) { removeTargetCopy(skill.manifest.slug, kind); });
    remember(skill.manifest.id, failures);
    if (!failures.empty())
        throw VORNELWorkspaceError::partialSync(kindsOf(failures));
}

void TargetSynchronizer::remember(const QUuid &id, const Failures &failures) const
{
    QMap<TargetKind, QString> reasons;
    for (const auto &[kind, failure] : failures)
        reasons.insert(kind, reasonOf(failure));
    if (reasons.isEmpty())
        m_workspace.failedSyncTargets.remove(id);
    else
        m_workspace.failedSyncTargets.insert(id, reasons);
}

fs::path TargetSynchronizer::recoveryPlace(const QString &label, TargetKind kind, const QString &slug) const
{
    const QString name = uuidText(QUuid::createUuid()) + label + rawValue(kind) + u'-' + slug;
    return m_workspace.config.recovery() / pathFromText(name);
}

void TargetSynchronizer::prepareRoot(TargetKind kind) const
{
    const fs::path &root = m_workspace.config.target(kind);
    refuseLinkedRoot(m_workspace.files, root);
    createFolders(m_workspace.files, root, Durability::Now);
}

void TargetSynchronizer::stageCopies(Install &install, const Failures &unusable) const
{
    std::string canonicalDigest;
    install.failures = failuresOf([&](TargetKind kind) {
        if (unusable.contains(kind))
            std::rethrow_exception(unusable.at(kind));
        if (canonicalDigest.empty())
            canonicalDigest = digestOf(install.skill->url);
        stageCopy(install, kind, canonicalDigest);
    });
}

std::string TargetSynchronizer::digestOf(const fs::path &folder) const
{
    return SecureFileTree::snapshot(m_workspace.files, folder, TreeFilter::excludingManifest).digest;
}

void TargetSynchronizer::stageCopy(Install &install, TargetKind kind,
                                   const std::string &canonicalDigest) const
{
    const SkillRecord &skill = *install.skill;
    const fs::path destination = m_workspace.config.target(kind) / pathFromText(skill.manifest.slug);
    const bool isOccupied = m_workspace.files.kindAt(destination).has_value();
    if (isOccupied && digestOf(destination) == canonicalDigest)
        return;

    Stage stage = m_store.makeStage();
    SecureFileTree::copyTree(m_workspace.files, skill.url, stage.path(), TreeFilter::excludingManifest);
    fs::path parking = isOccupied ? recoveryPlace(u"-"_s, kind, skill.manifest.slug) : fs::path();
    install.copies.emplace(kind, Publication{std::move(stage), destination, std::move(parking)});
}

void TargetSynchronizer::publishCopies(std::vector<Install> &installs) const
{
    std::vector<Publication *> copies;
    for (Install &install : installs) {
        for (Publication &copy : install.copies | std::views::values)
            copies.push_back(&copy);
    }
    publish(m_workspace.files, copies);
    for (Install &install : installs) {
        for (const auto &[kind, copy] : install.copies) {
            if (copy.failure)
                install.failures.emplace(kind, copy.failure);
            else if (!copy.former.empty())
                bestEffort([&] { m_store.discard(copy.former); });
        }
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

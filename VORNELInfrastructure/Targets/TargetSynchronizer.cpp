#include "TargetSynchronizer.h"

#include <VORNELCore/Errors/ErrorMessage.h>
#include <VORNELCore/Errors/VORNELWorkspaceError.h>
#include <VORNELCore/Errors/WorkspaceValidation.h>
#include <VORNELCore/Records/SerializedForms.h>
#include <VORNELInfrastructure/Disk/BestEffort.h>
#include <VORNELInfrastructure/Disk/FileOperations.h>
#include <VORNELInfrastructure/Disk/TreeOperations.h>
#include <VORNELInfrastructure/Tree/SecureFileTree.h>

#include <algorithm>
#include <ranges>

using namespace Qt::StringLiterals;

namespace vornel {

namespace fs = std::filesystem;

namespace {

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

/// Runs `action`, which moves a copy away. A folder that its owner may not write to can't be moved: the
/// failure names it, and not the place where it was to go.
template <typename Action>
void blaming(const fs::path &copy, const Action &action)
try {
    action();
} catch (const fs::filesystem_error &error) {
    if (error.code() != std::errc::permission_denied)
        throw;
    throw fs::filesystem_error("move", copy, error.code());
}

} // namespace

std::vector<Publication *> Install::publications()
{
    std::vector<Publication *> all;
    for (Publication &copy : copies | std::views::values)
        all.push_back(&copy);
    return all;
}

void TargetSynchronizer::synchronize(const SkillRecord &skill) const
{
    Failures unusable = prepareRoots();
    std::string digest;
    if (const auto unreadable = failureOf([&] { digest = contentOf(skill.url).digest; })) {
        for (const TargetKind kind : allCases<TargetKind>())
            unusable.emplace(kind, unreadable);
    }
    Install install = stage(skill.manifest, skill.url, digest, unusable);
    const auto isKept = [](const Publication *copy) { return !copy->keptAs.empty(); };
    if (std::ranges::any_of(install.publications(), isKept))
        createFolders(m_workspace.files, m_workspace.config.historyOf(skill.manifest.id), Durability::Now);
    settle(m_workspace.files, install.publications());
    place(m_workspace.files, install.publications());
    finish(install);
    if (!install.failures.empty())
        throw VORNELWorkspaceError::partialSync(kindsOf(install.failures));
}

void TargetSynchronizer::setAside(const SkillRecord &skill, TargetKind kind) const
{
    FileSystem &files = m_workspace.files;
    const QString &slug = skill.manifest.slug;
    prepareRoot(kind);
    Publication copy{.stage = m_store.makeStage(),
                     .destination = m_workspace.config.target(kind) / pathFromText(slug)};
    if (files.kindAt(copy.destination))
        copy.parking = copy.keptAs = recoveryPlace(u"-removed-"_s, kind, slug);
    SecureFileTree::copyTree(files, skill.url, copy.stage.path(), TreeFilter::excludingManifest);
    blaming(copy.destination, [&] { publish(files, copy); });
    discardFormer(copy);

    TargetReasons reasons = m_workspace.failedSyncTargets.take(skill.manifest.id);
    if (reasons.remove(kind); !reasons.isEmpty())
        m_workspace.failedSyncTargets.insert(skill.manifest.id, reasons);
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
    TargetReasons reasons;
    for (const auto &[kind, failure] : failures)
        reasons.insert(kind, errorMessage(failure));
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

TargetSynchronizer::Failures TargetSynchronizer::prepareRoots() const
{
    return failuresOf([this](TargetKind kind) { prepareRoot(kind); });
}

void TargetSynchronizer::prepareRoot(TargetKind kind) const
{
    const fs::path &root = m_workspace.config.target(kind);
    refuseLinkedRoot(m_workspace.files, root);
    createFolders(m_workspace.files, root, Durability::Now);
}

Install TargetSynchronizer::stage(const SkillManifest &manifest, const fs::path &source,
                                  const std::string &digest, const Failures &unusable) const
{
    Install install{manifest.id};
    Looks looks;
    install.failures = failuresOf([&](TargetKind kind) {
        if (unusable.contains(kind))
            std::rethrow_exception(unusable.at(kind));
        if (auto copy = stagedCopy(manifest, source, digest, kind, looks))
            install.copies.emplace(kind, std::move(*copy));
    });
    return install;
}

FileTreeSnapshot TargetSynchronizer::contentOf(const fs::path &folder) const
{
    return SecureFileTree::snapshot(m_workspace.files, folder, TreeFilter::excludingManifest);
}

std::optional<Publication> TargetSynchronizer::stagedCopy(const SkillManifest &manifest,
                                                          const fs::path &source, const std::string &digest,
                                                          TargetKind kind, Looks &looks) const
{
    Publication copy{.stage = m_store.makeStage(),
                     .destination = m_workspace.config.target(kind) / pathFromText(manifest.slug)};
    if (m_workspace.files.kindAt(copy.destination)) {
        const FileTreeSnapshot former = contentOf(copy.destination);
        if (former.digest == digest)
            return std::nullopt;
        if (!isHeld(manifest.id, former, looks))
            copy.keptAs = m_history.placeForReplaced(manifest.id, rawValue(kind));
        copy.parking = copy.keptAs.empty() ? recoveryPlace(u"-"_s, kind, manifest.slug) : copy.keptAs;
    }
    SecureFileTree::copyTree(m_workspace.files, source, copy.stage.path(), TreeFilter::excludingManifest);
    return copy;
}

/// Looks into the history, which takes its time, once where both copies are the same.
bool TargetSynchronizer::isHeld(const QUuid &id, const FileTreeSnapshot &copy, Looks &looks) const
{
    if (!copy.isWhole)
        return false;
    auto found = looks.find(copy.digest);
    if (found == looks.end())
        found = looks.emplace(copy.digest, m_history.holds(id, copy.digest)).first;
    return found->second;
}

void TargetSynchronizer::finish(Install &install) const
{
    for (const auto &[kind, copy] : install.copies) {
        if (copy.failure)
            install.failures.emplace(kind, copy.failure);
        else
            discardFormer(copy);
    }
    remember(install.id, install.failures);
}

void TargetSynchronizer::discardFormer(const Publication &copy) const
{
    if (!copy.former.empty())
        bestEffort([&] { m_store.discard(copy.former); });
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
    blaming(destination, [&] { moveTree(files, destination, recoveryPlace(u"-removed-"_s, kind, slug)); });
}

} // namespace vornel

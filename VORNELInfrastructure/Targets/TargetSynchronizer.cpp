#include "TargetSynchronizer.h"

#include <VORNELCore/Errors/ErrorMessage.h>
#include <VORNELCore/Errors/VORNELWorkspaceError.h>
#include <VORNELCore/Errors/WorkspaceValidation.h>
#include <VORNELCore/Records/SerializedForms.h>
#include <VORNELInfrastructure/Disk/BestEffort.h>
#include <VORNELInfrastructure/Disk/FileOperations.h>
#include <VORNELInfrastructure/Disk/TreeOperations.h>
#include <VORNELInfrastructure/Tree/ParallelMap.h>
#include <VORNELInfrastructure/Tree/SecureFileTree.h>
#include <VORNELInfrastructure/Tree/SharingCopy.h>

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

std::vector<fs::path> Install::stages() const
{
    std::vector<fs::path> all;
    for (const StagedFolder &copy : copies | std::views::values)
        all.push_back(copy.stage.path());
    return all;
}

void TargetSynchronizer::synchronize(const SkillRecord &skill) const
{
    Failures unusable = prepareRoots();
    FileTreeSnapshot content;
    if (const auto unreadable = failureOf([&] { content = contentOf(skill.folder); })) {
        for (const TargetKind kind : allCases<TargetKind>())
            unusable.emplace(kind, unreadable);
    }
    installAll(skill.manifest, content, find(skill.manifest, unusable));
}

void TargetSynchronizer::synchronize(const SkillManifest &manifest, const FileTreeSnapshot &tree,
                                     TargetCopies copies) const
{
    installAll(manifest, tree.content(), std::move(copies));
}

void TargetSynchronizer::installAll(const SkillManifest &manifest, const FileTreeSnapshot &content,
                                    TargetCopies copies) const
{
    m_workspace.changes[manifest.id].installedContent = content.digest;
    install(manifest, stage(manifest, content, std::move(copies)));
}

void TargetSynchronizer::putBack(const SkillManifest &manifest, TargetKind kind,
                                 const FileTreeSnapshot &kept) const
{
    const auto targets = allCases<TargetKind>();
    QSet<TargetKind> others(targets.begin(), targets.end());
    others.remove(kind);
    install(manifest, stage(manifest, kept, find(manifest, others)));
}

void TargetSynchronizer::install(const SkillManifest &manifest, Install install) const
{
    const auto isKept = [](const StagedFolder &copy) { return !copy.destination.keptAs.empty(); };
    if (std::ranges::any_of(install.copies | std::views::values, isKept))
        createFolders(m_workspace.files, m_workspace.config.historyOf(manifest.id), Durability::Now);
    Commit commit(m_workspace.files);
    commit.flush(install.stages());
    const CopyResults results = rename(install, commit);
    commit.flushNames();
    const Failures failures = finish(install, results);
    if (!failures.empty())
        throw VORNELWorkspaceError::partialSync(kindsOf(failures));
}

void TargetSynchronizer::putBack(const SkillManifest &manifest, const TakenOut &copies) const
{
    changeBoth(manifest.id, [&](TargetKind kind) {
        const auto copy = copies.find(kind);
        if (copy == copies.end())
            return;
        prepareRoot(kind);
        moveTree(m_workspace.files, copy->second, placeIn(kind, manifest));
    });
}

void TargetSynchronizer::renameCopies(const SkillManifest &manifest, const QString &from) const
{
    changeBoth(manifest.id, [&](TargetKind kind) {
        const fs::path &root = m_workspace.config.target(kind);
        refuseLinkedRoot(m_workspace.files, root);
        const fs::path copy = root / pathFromText(from);
        const fs::path renamed = root / pathFromText(manifest.slug);
        const bool isToMove = m_workspace.files.kindAt(root) && m_workspace.files.kindAt(copy) &&
                              !m_workspace.files.kindAt(renamed);
        if (isToMove)
            blaming(copy, [&] { moveTree(m_workspace.files, copy, renamed); });
    });
}

void TargetSynchronizer::changeBoth(const QUuid &id, const std::function<void(TargetKind)> &change) const
{
    const Failures failures = failuresOf(change);
    remember(id, failures);
    if (!failures.empty())
        throw VORNELWorkspaceError::partialSync(kindsOf(failures));
}

void TargetSynchronizer::setAside(const SkillRecord &skill, TargetKind kind) const
{
    FileSystem &files = m_workspace.files;
    const QString &slug = skill.manifest.slug;
    prepareRoot(kind);
    CommitPlace destination{.path = m_workspace.config.target(kind) / pathFromText(slug)};
    if (files.kindAt(destination.path))
        destination.backup = destination.keptAs = recoveryPlace(u"-removed-"_s, kind, slug);
    StagedFolder copy{m_store.makeStage(), destination};
    SecureFileTree::copyTree(files, skill.folder, copy.stage.path(), TreeFilter::excludingManifest);
    blaming(destination.path, [&] { discardFormer(commit(files, copy)); });

    TargetReasons reasons = m_workspace.failedSyncTargets.take(skill.manifest.id);
    if (reasons.remove(kind); !reasons.isEmpty())
        m_workspace.failedSyncTargets.insert(skill.manifest.id, reasons);
}

void TargetSynchronizer::removeCopies(const SkillRecord &skill) const
{
    changeBoth(skill.manifest.id, [&](TargetKind kind) { removeTargetCopy(skill.manifest, kind); });
}

void TargetSynchronizer::remember(const QUuid &id, const Failures &failures,
                                  const QSet<TargetKind> &leftAlone) const
{
    TargetReasons reasons = m_workspace.failedSyncTargets.value(id);
    reasons.removeIf([&](const auto &reason) { return !leftAlone.contains(reason.key()); });
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

TargetCopies TargetSynchronizer::find(const SkillManifest &manifest, const QSet<TargetKind> &leftAlone) const
{
    return find(manifest, prepareRoots(), leftAlone);
}

TargetCopies TargetSynchronizer::find(const SkillManifest &manifest, const Failures &unusable,
                                      const QSet<TargetKind> &leftAlone) const
{
    QList<TargetKind> kinds = allCases<TargetKind>();
    kinds.removeIf([&](TargetKind kind) { return leftAlone.contains(kind); });
    const auto found = parallelMap(kinds, [&](TargetKind kind) {
        return TargetCopies::value_type(kind, findIn(kind, manifest, unusable));
    });
    return {found.begin(), found.end()};
}

TargetCopy TargetSynchronizer::findIn(TargetKind kind, const SkillManifest &manifest,
                                      const Failures &unusable) const
{
    if (const auto known = unusable.find(kind); known != unusable.end())
        return {.failure = known->second};
    TargetCopy found;
    found.failure = failureOf([&] {
        const fs::path place = placeIn(kind, manifest);
        if (m_workspace.files.kindAt(place))
            found.tree = contentOf(place);
    });
    return found;
}

Install TargetSynchronizer::stage(const SkillManifest &manifest, const FileTreeSnapshot &content,
                                  TargetCopies copies) const
{
    Install install{manifest, content.digest};
    Looks looks;
    for (const TargetKind kind : allCases<TargetKind>()) {
        const auto copy = copies.find(kind);
        if (copy == copies.end()) {
            install.leftAlone.insert(kind);
            continue;
        }
        auto &[found, failure] = copy->second;
        if (!failure)
            failure = failureOf([&] { stageCopy(install, kind, std::move(found), content, looks); });
        if (failure)
            install.failures.emplace(kind, failure);
    }
    return install;
}

fs::path TargetSynchronizer::placeIn(TargetKind kind, const SkillManifest &manifest) const
{
    return m_workspace.config.target(kind) / pathFromText(manifest.slug);
}

FileTreeSnapshot TargetSynchronizer::contentOf(const fs::path &folder) const
{
    return SecureFileTree::snapshot(m_workspace.files, folder, TreeFilter::excludingManifest,
                                    &m_workspace.digests);
}

void TargetSynchronizer::stageCopy(Install &install, TargetKind kind, std::optional<FileTreeSnapshot> found,
                                   const FileTreeSnapshot &content, Looks &looks) const
{
    const SkillManifest &manifest = install.manifest;
    CommitPlace destination{.path = placeIn(kind, manifest)};
    const FileTreeSnapshot *discarded = nullptr;
    if (found) {
        if (found->digest == content.digest)
            return;
        const FileTreeSnapshot &former = install.formers.emplace(kind, std::move(*found)).first->second;
        if (isHeld(manifest.id, former, looks)) {
            if (auto renewal = FileRenewal::between(m_workspace.files, former, content)) {
                install.renewals.emplace(kind, std::move(*renewal));
                return;
            }
            discarded = &former;
        } else {
            destination.keptAs = m_history.placeForReplaced(manifest, originOfCopy(kind));
        }
        destination.backup =
            destination.keptAs.empty() ? recoveryPlace(u"-"_s, kind, manifest.slug) : destination.keptAs;
    }
    StagedFolder copy{m_store.makeStage(), destination};
    if (discarded != nullptr)
        copyTakingOver(m_workspace.files, content, *discarded, copy.stage.path());
    else
        SecureFileTree::copyTree(m_workspace.files, content.root, copy.stage.path(),
                                 TreeFilter::excludingManifest);
    install.copies.emplace(kind, std::move(copy));
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

CopyResults TargetSynchronizer::rename(Install &install, Commit &commit) const
{
    CopyResults results;
    for (auto &[kind, copy] : install.copies)
        results.emplace(kind, commit.rename(copy));
    for (const auto &staged : install.renewals) {
        const FileRenewal &renewal = staged.second;
        results.emplace(staged.first,
                        CommitResult{.failure = failureOf([&] { renewal.run(m_workspace.files); })});
    }
    return results;
}

TargetSynchronizer::Failures TargetSynchronizer::finish(const Install &install,
                                                        const CopyResults &results) const
{
    Failures failures = install.failures;
    KeptCopies kept;
    for (const auto &[kind, result] : results) {
        if (const auto failure = result.failure ? result.failure : settle(install, kind, result.former, kept))
            failures.emplace(kind, failure);
    }
    remember(install.manifest.id, failures, install.leftAlone);
    return failures;
}

/// What was written into the former copy since it was read is kept.
std::exception_ptr TargetSynchronizer::settle(const Install &install, TargetKind kind, const fs::path &left,
                                              KeptCopies &kept) const
{
    const auto former = install.formers.find(kind);
    const bool hadCopy = former != install.formers.end();
    m_workspace.changes[install.manifest.id].copies[kind] = {
        hadCopy ? std::optional(former->second.digest) : std::nullopt, install.digest};
    if (!hadCopy)
        return nullptr;
    const FileTreeSnapshot &asRead = former->second;
    const auto copy = install.copies.find(kind);
    if (copy != install.copies.end() && !copy->second.destination.keptAs.empty())
        keepOnce(copy->second.destination.keptAs, asRead.digest, kept);
    if (left.empty())
        return nullptr;
    return failureOf([&] {
        if (!m_history.keepIfChanged(install.manifest, originOfCopy(kind), left, asRead,
                                     TreeFilter::excludingManifest))
            discardFormer(left);
    });
}

void TargetSynchronizer::keepOnce(const fs::path &entry, const std::string &digest, KeptCopies &kept) const
{
    const auto [first, isFirst] = kept.try_emplace(digest, entry);
    if (!isFirst && holdsOnly(first->second, digest) && holdsOnly(entry, digest))
        discardFormer(entry);
    else
        m_history.shareReplaced(entry);
}

/// Whether a folder has this content, and nothing hidden beside it: all of it is read anew.
bool TargetSynchronizer::holdsOnly(const fs::path &folder, const std::string &digest) const
{
    bool holds = false;
    bestEffort([&] {
        const FileTreeSnapshot content =
            SecureFileTree::snapshot(m_workspace.files, folder, TreeFilter::excludingManifest);
        holds = content.isWhole && content.digest == digest;
    });
    return holds;
}

void TargetSynchronizer::discardFormer(const fs::path &former) const
{
    if (!former.empty())
        bestEffort([&] { m_store.discard(former); });
}

void TargetSynchronizer::removeTargetCopy(const SkillManifest &manifest, TargetKind kind) const
{
    const QString &slug = manifest.slug;
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
    const fs::path place = recoveryPlace(u"-removed-"_s, kind, slug);
    blaming(destination, [&] { moveTree(files, destination, place); });
    m_workspace.changes[manifest.id].takenOut[kind] = place;
}

} // namespace vornel

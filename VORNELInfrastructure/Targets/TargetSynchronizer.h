#pragma once

#include "FileRenewal.h"

#include <VORNELInfrastructure/History/SkillHistory.h>
#include <VORNELInfrastructure/Skills/SkillFolderStore.h>
#include <VORNELInfrastructure/Skills/SkillRecords.h>

#include <exception>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace vornel {

/// What is staged of one skill for the targets.
struct Install
{
    SkillManifest manifest;
    std::string digest = {};                             ///< of their content
    QSet<TargetKind> leftAlone = {};                     ///< the targets that it isn't about
    std::map<TargetKind, StagedFolder> copies = {};      ///< for the targets where more than a file is wrong
    std::map<TargetKind, FileRenewal> renewals = {};     ///< for those where one file of it isn't
    std::map<TargetKind, FileTreeSnapshot> formers = {}; ///< the copies that are there
    std::map<TargetKind, std::exception_ptr> failures = {}; ///< of the targets for which none could be staged

    std::vector<std::filesystem::path> stages() const;
};

/// What stands in a target under the name of a skill.
struct TargetCopy
{
    std::optional<FileTreeSnapshot> tree = {};
    std::exception_ptr failure = nullptr; ///< why it can't be read
};

/// In the targets that an install is about.
using TargetCopies = std::map<TargetKind, TargetCopy>;

/// What became of the staged copies of a skill.
using CopyResults = std::map<TargetKind, CommitResult>;

/// Installs skills into the assistants' folders, and takes them out.
class TargetSynchronizer
{
public:
    explicit TargetSynchronizer(const Workspace &workspace)
        : m_workspace(workspace), m_store(workspace), m_history(workspace)
    {}

    /// Makes both copies equal to the canonical folder. What stood there goes into the skill's history,
    /// unless that holds it already. A failed target doesn't stop the other: failures are remembered, then
    /// thrown as `partialSync`. Targets that are left alone stay as they are.
    void synchronize(const SkillRecord &skill) const;

    /// The same for a skill of which all files have just been read, in the targets of these copies.
    void synchronize(const SkillManifest &manifest, const FileTreeSnapshot &tree, TargetCopies copies) const;

    /// Puts a content that the history has kept into one target, as a synchronisation does.
    void putBack(const SkillManifest &manifest, TargetKind kind, const FileTreeSnapshot &kept) const;

    /// Moves copies back into their targets, where nothing may stand. A failed target doesn't stop the other:
    /// failures are remembered, then thrown as `partialSync`.
    void putBack(const SkillManifest &manifest, const TakenOut &copies) const;

    /// Puts a fresh copy in the place of one, whatever stands there; that goes into the recovery folder as it
    /// is.
    void setAside(const SkillRecord &skill, TargetKind kind) const;

    /// Gives the copies that are there the name of the skill, which had the slug `from` before, unless
    /// something has that name. A failed
    /// target doesn't stop the other: failures are remembered, then thrown as `partialSync`.
    void renameCopies(const SkillManifest &manifest, const QString &from) const;

    /// Moves both copies into the recovery folder. A failed target doesn't stop the other: failures are
    /// remembered, then thrown as `partialSync`.
    void removeCopies(const SkillRecord &skill) const;

    using Failures = std::map<TargetKind, std::exception_ptr>;

    /// Sees to it that the targets' roots are there, and no links. Returns those of no use.
    Failures prepareRoots() const;

    /// What stands in the targets, but for those that are left alone. The first form prepares their roots.
    TargetCopies find(const SkillManifest &manifest, const QSet<TargetKind> &leftAlone = {}) const;
    TargetCopies find(const SkillManifest &manifest, const Failures &unusable,
                      const QSet<TargetKind> &leftAlone = {}) const;

    /// Stages what these targets need for their copies to have this content. What these replace goes into the
    /// history, which has to be there when they are committed.
    Install stage(const SkillManifest &manifest, const FileTreeSnapshot &content, TargetCopies copies) const;

    /// Puts the staged copies, which are flushed, in their places.
    CopyResults rename(Install &install, Commit &commit) const;

    /// Ends an install: removes the former copies, and remembers all that failed, which it returns.
    Failures finish(const Install &install, const CopyResults &results) const;

private:
    /// By the digest of a content, whether the history holds all of it.
    using Looks = std::map<std::string, bool>;

    /// By the digest of a content, where an install has kept a copy that had it.
    using KeptCopies = std::map<std::string, std::filesystem::path>;

    TargetCopy findIn(TargetKind kind, const SkillManifest &manifest, const Failures &unusable) const;
    void stageCopy(Install &install, TargetKind kind, std::optional<FileTreeSnapshot> found,
                   const FileTreeSnapshot &content, Looks &looks) const;
    std::filesystem::path placeIn(TargetKind kind, const SkillManifest &manifest) const;
    void install(const SkillManifest &manifest, Install install) const;
    void installAll(const SkillManifest &manifest, const FileTreeSnapshot &content,
                    TargetCopies copies) const;
    bool holdsOnly(const std::filesystem::path &folder, const std::string &digest) const;
    bool isHeld(const QUuid &id, const FileTreeSnapshot &copy, Looks &looks) const;
    void prepareRoot(TargetKind kind) const;

    /// Does this for both targets; failures are remembered, then thrown as `partialSync`.
    void changeBoth(const QUuid &id, const std::function<void(TargetKind)> &change) const;

    std::exception_ptr settle(const Install &install, TargetKind kind, const std::filesystem::path &left,
                              KeptCopies &kept) const;
    void keepOnce(const std::filesystem::path &entry, const std::string &digest, KeptCopies &kept) const;
    /// Removes the folder that a copy has replaced, unless it is kept.
    void discardFormer(const std::filesystem::path &former) const;
    void removeTargetCopy(const SkillManifest &manifest, TargetKind kind) const;

    /// Keeps which targets of a skill failed, if any, each with its reason; of those that were left alone,
    /// what was kept before.
    void remember(const QUuid &id, const Failures &failures, const QSet<TargetKind> &leftAlone = {}) const;

    FileTreeSnapshot contentOf(const std::filesystem::path &folder) const;
    std::filesystem::path recoveryPlace(const QString &label, TargetKind kind, const QString &slug) const;

    const Workspace &m_workspace;
    SkillFolderStore m_store;
    SkillHistory m_history;
};

} // namespace vornel

#pragma once

#include "SkillFolderStore.h"
#include "SkillRecords.h"

#include <exception>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace vornel {

/// What becomes of a folder that an install replaces. Under the slug of a skill that is new to the targets
/// stands nothing of its own: such a folder is kept in the skill's history.
enum class Former { Discarded, Kept };

/// One skill on its way into the targets.
struct Install
{
    QUuid id;
    std::map<TargetKind, Publication> copies = {}; ///< for the targets where the copy isn't right
    std::map<TargetKind, std::exception_ptr> failures = {};

    std::vector<Publication *> publications();
};

/// Installs skills into the assistants' folders, and takes them out.
class TargetSynchronizer
{
public:
    explicit TargetSynchronizer(const Workspace &workspace) : m_workspace(workspace), m_store(workspace) {}

    /// Makes both copies equal to the canonical folder. A failed target doesn't stop the other: failures are
    /// remembered, then thrown as `partialSync`. To keep a folder, the skill must have a history.
    void synchronize(const SkillRecord &skill, Former former = Former::Discarded) const;

    /// Moves both copies into the recovery folder. A failed target doesn't stop the other: failures are
    /// remembered, then thrown as `partialSync`.
    void removeCopies(const SkillRecord &skill) const;

    using Failures = std::map<TargetKind, std::exception_ptr>;

    /// Sees to it that the targets' roots are there, and no links. Returns those of no use.
    Failures prepareRoots() const;

    /// Stages what the targets need for their copies to be those of `source`, which has this digest.
    Install stage(const SkillManifest &manifest, const std::filesystem::path &source,
                  const std::string &digest, const Failures &unusable, Former former) const;

    /// Ends an install whose copies have been placed: keeps what failed, in memory and with the install, and
    /// removes the former copies.
    void finish(Install &install) const;

private:
    std::optional<Publication> stagedCopy(const SkillManifest &manifest, const std::filesystem::path &source,
                                          const std::string &digest, TargetKind kind, Former former) const;
    void removeTargetCopy(const QString &slug, TargetKind kind) const;

    /// Keeps which targets of a skill failed, if any, each with its reason.
    void remember(const QUuid &id, const Failures &failures) const;

    std::string digestOf(const std::filesystem::path &folder) const;
    std::filesystem::path recoveryPlace(const QString &label, TargetKind kind, const QString &slug) const;
    std::filesystem::path parkingPlace(const SkillManifest &manifest, TargetKind kind, Former former) const;

    const Workspace &m_workspace;
    SkillFolderStore m_store;
};

} // namespace vornel

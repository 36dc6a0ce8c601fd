#pragma once

#include <VORNELCore/Records/WorkspaceModels.h>
#include <VORNELInfrastructure/Disk/Commit.h>
#include <VORNELInfrastructure/Tree/FileTreeSnapshot.h>
#include <VORNELInfrastructure/Workspace/Workspace.h>

#include <optional>
#include <string>
#include <vector>

namespace vornel {

/// What is kept of a skill: a copy of each revision, named by it, and of the folders that were
/// replaced, named "replaced-" with their origin.
class SkillHistory
{
public:
    explicit SkillHistory(const Workspace &workspace) : m_files(workspace.files), m_config(workspace.config)
    {}

    /// Adds a copy of the skill's folder.
    void add(const SkillManifest &manifest, const std::filesystem::path &skillURL) const;

    /// Stages such a copy, to be committed by the caller.
    StagedFolder stage(const SkillManifest &manifest, const std::filesystem::path &skillURL) const;

    /// Whether an entry of the manifest's revision holds this content of the skill's folder.
    bool holdsRevision(const SkillManifest &manifest, const FileTreeSnapshot &content) const;

    /// Adds what `skillURL` holds unless an entry does: somebody may have edited the folder by hand, without
    /// a new revision. Comes before whatever replaces that folder. Returns where the folder itself is to be
    /// kept then, because it has hidden entries, which no revision has; without a name when it hasn't.
    std::filesystem::path keepRevision(const SkillManifest &manifest,
                                       const std::filesystem::path &skillURL) const;

    /// Whether an entry, of whatever revision, holds what counts of a folder, which has this digest: a folder
    /// without anything hidden may be deleted then.
    bool holds(const QUuid &id, const std::string &digest) const;

    /// The entries that are revisions of the skill, by their names, the latest first.
    std::vector<std::string> revisions(const QUuid &id) const;

    /// The digest of what counts of an entry; nothing where that can't be read.
    std::optional<std::string> contentOf(const QUuid &id, const std::string &entry) const;

    /// Where a folder that is replaced is to be kept. `origin` is a target, or "library".
    std::filesystem::path placeForReplaced(const QUuid &id, const QString &origin) const;

    /// Deletes the history of a skill that is deleted for good, if there is one. What was replaced goes to
    /// the recovery folder: who deletes a skill means its text, not others' folders, nor the hidden files in
    /// its own.
    void remove(const QUuid &id) const;

private:
    bool anyHolds(const QUuid &id, std::string_view prefix, TreeFilter filter,
                  const std::string &digest) const;
    std::optional<std::string> digestOf(const std::filesystem::path &entry, TreeFilter filter) const;
    std::filesystem::path placeFor(const QUuid &id, const QString &name) const;

    FileSystem &m_files;
    const Configuration &m_config;
};

} // namespace vornel

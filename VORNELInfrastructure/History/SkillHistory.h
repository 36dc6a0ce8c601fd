#pragma once

#include <VORNELCore/Records/WorkspaceModels.h>
#include <VORNELInfrastructure/Disk/Commit.h>
#include <VORNELInfrastructure/Tree/FileTreeSnapshot.h>
#include <VORNELInfrastructure/Workspace/Workspace.h>

#include <optional>
#include <string>
#include <vector>

namespace vornel {

/// What is kept of a skill: a copy of each revision, under its number, and the folders that were replaced and
/// are in no revision, under "replaced-" or "merged-" and their origin.
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

    /// Adds the content of `skillURL` unless an entry holds it: the folder may have been edited by hand,
    /// without a new revision. To be called before the folder is replaced. Returns where the folder itself
    /// must be kept then, if it has hidden entries, which revisions leave out; otherwise an empty path.
    std::filesystem::path keepRevision(const SkillManifest &manifest,
                                       const std::filesystem::path &skillURL) const;

    /// Whether any entry has this digest of its visible content without the manifest. A folder with that
    /// digest may be deleted then, if it has no hidden entries.
    bool holds(const QUuid &id, const std::string &digest) const;

    /// The entries that are revisions of the skill, by their names, the latest first.
    std::vector<std::string> revisions(const QUuid &id) const;

    /// The digest of an entry's visible content without the manifest; nothing where that can't be read.
    std::optional<std::string> contentOf(const QUuid &id, const std::string &entry) const;

    /// Where a folder that is replaced is to be kept. `origin` is a target, or "library".
    std::filesystem::path placeForReplaced(const QUuid &id, const QString &origin) const;

    /// Keeps a target's copy of which a merge makes a part of what will have the digest `result`, until the
    /// copy is replaced by that. To be called before the skill's folder is.
    void keepMerged(const QUuid &id, const QString &origin, const std::string &result,
                    const std::filesystem::path &copy) const;

    /// Whether a copy with this digest has become a part of what has the digest `result`.
    bool wasMerged(const QUuid &id, const QString &origin, const std::string &result,
                   const std::string &digest) const;

    /// Deletes the history, if any, of a skill that is deleted for good. The folders that were replaced go to
    /// the recovery folder: they may hold others' work, or hidden files, which nobody has asked to delete.
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

#pragma once

#include "EntryTrees.h"
#include "KeptVersion.h"
#include "SharedFiles.h"

#include <VORNELCore/Records/WorkspaceModels.h>
#include <VORNELInfrastructure/Disk/Commit.h>
#include <VORNELInfrastructure/Tree/FileTreeSnapshot.h>
#include <VORNELInfrastructure/Tree/SharingCopy.h>
#include <VORNELInfrastructure/Workspace/Workspace.h>

#include <optional>
#include <string>
#include <vector>

namespace vornel {

/// The folder of a skill before it is replaced.
struct FormerFolder
{
    FileTreeSnapshot tree;        ///< all that is visible in it
    std::filesystem::path keptAs; ///< where the folder itself must be kept; empty where it need not be
};

/// An entry in the making.
struct StagedEntry
{
    /// Copies what no other entry holds, and flushes all of it to the disk. Throws when either fails.
    void complete();

    /// Puts it in its place.
    void put() { Commit(files).finish(folder); }

    StagedFolder folder; ///< the entry or, with the first one, the whole history
    SharingCopy copy;
    FileSystem &files;
    std::filesystem::path source; ///< of the files that no other entry holds
};

/// What is kept of a skill: a copy of each revision, under its number, and what was replaced and is in no
/// revision, under "replaced-" or "merged-" and its origin.
class SkillHistory
{
public:
    explicit SkillHistory(const Workspace &workspace)
        : m_files(workspace.files),
          m_config(workspace.config),
          m_digests(workspace.digests),
          m_entries(workspace.entries)
    {}

    /// Adds a copy of the skill's folder, and returns what it holds.
    FileTreeSnapshot add(const SkillManifest &manifest, const std::filesystem::path &skillURL) const;

    /// Begins a copy of a folder of which is known what it will hold, with what other entries hold. It is to
    /// be completed once the folder is there, and before others may write to it.
    StagedEntry begin(const SkillManifest &manifest, const FileTreeSnapshot &content) const;

    /// Stages the history of a new skill with the first copy of its folder, to be committed by the caller.
    StagedFolder stageFirst(const SkillManifest &manifest, const std::filesystem::path &skillURL) const;

    /// Whether a version of the library's at the manifest's revision holds this content of the skill's
    /// folder.
    bool holdsRevision(const SkillManifest &manifest, const FileTreeSnapshot &content) const;

    /// Adds the content of `skillURL` unless an entry holds it: the folder may have been edited by hand,
    /// without a new revision, and is kept as replaced then. To be called before the folder is replaced. The
    /// folder itself must be kept then if it has hidden entries, which revisions leave out.
    FormerFolder keepRevision(const SkillManifest &manifest, const std::filesystem::path &skillURL) const;

    /// Whether any entry has this digest of its visible content without the manifest. A folder with that
    /// digest may be deleted then, if it has no hidden entries.
    bool holds(const QUuid &id, const std::string &digest) const;

    /// The versions of a skill: its revisions, the latest first, then what was replaced.
    std::vector<KeptVersion> versions(const QUuid &id) const;

    /// Those that the library itself has held, the latest revision first: what was edited by hand too.
    std::vector<KeptVersion> ownVersions(const QUuid &id) const;
    std::vector<KeptVersion> ownVersions(const SkillManifest &manifest) const; ///< at its revision

    /// The digest of an entry's visible content without the manifest; nothing where that can't be read.
    std::optional<std::string> contentOf(const QUuid &id, const std::string &entry) const;

    /// Where a folder is to be kept that is replaced now.
    std::filesystem::path placeForReplaced(const SkillManifest &manifest, VersionOrigin origin) const;

    /// Keeps a target's copy of which a merge makes a part of what will have the digest `result`, until the
    /// copy is replaced by that. To be called before the skill's folder is.
    void keepMerged(const SkillManifest &manifest, VersionOrigin origin, const std::string &result,
                    const std::filesystem::path &copy) const;

    /// Whether a copy with this digest has become a part of what has the digest `result`.
    bool wasMerged(const QUuid &id, VersionOrigin origin, const std::string &result,
                   const std::string &digest) const;

    /// Keeps a folder that has been replaced if it is no longer what was read of it, with this filter.
    /// Returns whether it is kept, and gone from where it stood.
    bool keepIfChanged(const SkillManifest &manifest, VersionOrigin origin,
                       const std::filesystem::path &former, const FileTreeSnapshot &asRead,
                       TreeFilter filter) const;

    /// Lets an entry that was put in its place by an exchange share what it has in common with others. What
    /// can't be done is left: nothing is lost by it.
    void shareReplaced(const std::filesystem::path &entry) const noexcept;

    /// Deletes the history, if any, of a skill that is deleted for good and stands in `skillURL` meanwhile.
    /// The folders that were replaced go to the recovery folder, with its slug in their names: they may hold
    /// others' work, or hidden files, which nobody has asked to delete.
    void remove(const QUuid &id, const std::filesystem::path &skillURL) const;

private:
    std::vector<KeptVersion> versionsIn(const std::filesystem::path &history) const;
    FileTreeSnapshot read(const std::filesystem::path &folder, TreeFilter filter) const;
    void exchange(const std::filesystem::path &stage, const std::filesystem::path &entry) const;
    SharedFiles sharedFiles(const std::filesystem::path &history) const;
    SharingCopy sharingCopy(const FileTreeSnapshot &content, const std::filesystem::path &history,
                            const std::filesystem::path &destination) const;
    bool anyHolds(const QUuid &id, std::vector<KeptVersion> versions, TreeFilter filter,
                  const std::string &digest) const;
    void keep(const std::filesystem::path &place, const FileTreeSnapshot &content) const;
    StagedEntry begin(const std::filesystem::path &place, const FileTreeSnapshot &content) const;
    EntryTrees::Tree treeOf(const std::filesystem::path &entry) const;
    std::optional<std::string> digestOf(const std::filesystem::path &entry, TreeFilter filter) const;
    std::filesystem::path placeFor(const QUuid &id, const QString &name) const;

    FileSystem &m_files;
    const Configuration &m_config;
    FileDigests &m_digests;
    EntryTrees &m_entries;
};

} // namespace vornel

#pragma once

#include <VORNELCore/Records/WorkspaceModels.h>
#include <VORNELInfrastructure/Disk/Commit.h>
#include <VORNELInfrastructure/Disk/FileOperations.h>
#include <VORNELInfrastructure/Workspace/Workspace.h>

namespace vornel {

/// Makes the manifest that of the skill's next revision, changed now. Throws `integrityFailure` at the last
/// revision that can be counted.
void advanceRevision(SkillManifest &manifest);

/// Reads and writes the folder of one skill: the staged copy, its files, its swap into place.
class SkillFolderStore
{
public:
    explicit SkillFolderStore(const Workspace &workspace)
        : SkillFolderStore(workspace.files, workspace.config)
    {}
    SkillFolderStore(FileSystem &files, const Configuration &config) : m_files(files), m_config(config) {}

    /// A fresh place in the staging folder.
    Stage makeStage() const { return {m_files, m_config.staging()}; }

    /// Writes the text into a staged folder.
    void writeSkillMD(const QString &text, const std::filesystem::path &folder) const;

    /// Writes the manifest into a folder: `Later` where it is staged. Throws `integrityFailure` for one that
    /// a newer version wrote.
    void writeManifest(const SkillManifest &manifest, const std::filesystem::path &folder,
                       Durability durability) const;

    /// Throws `malformedManifest` with the manifest's path when it is missing, unreadable or wrong.
    SkillManifest readManifest(const std::filesystem::path &folder) const;
    SkillManifest readManifest(const Folder &parent, const std::string &name) const;

    /// The text of "SKILL.md", every character kept. Throws `missingSkillFile(slug)` when there is none, and
    /// a `filesystem_error` when it is not UTF-8.
    QString readSkillMD(const std::filesystem::path &folder, const QString &slug) const;

    /// Replaces the skill's folder by the staged one, flushed to the disk. Whatever fails, the skill stands
    /// whole in its place or, on a volume that can't exchange two folders, in the recovery folder. The former
    /// folder is removed unless `keptAs` says where it is kept.
    void replaceCanonical(const std::filesystem::path &skill, Stage stage,
                          const std::filesystem::path &keptAs) const;

    /// Deletes a folder. It leaves its place first, in one step, so that an interrupted deletion never leaves
    /// half a folder there.
    void discard(const std::filesystem::path &folder) const;

private:
    FileSystem &m_files;
    const Configuration &m_config;
};

} // namespace vornel

#pragma once

#include <VORNELCore/Records/WorkspaceModels.h>
#include <VORNELInfrastructure/Disk/Commit.h>
#include <VORNELInfrastructure/Disk/FileOperations.h>
#include <VORNELInfrastructure/Workspace/Workspace.h>

#include <optional>

namespace vornel {

/// Turns the manifest into that of the skill's next revision, changed now. Throws `integrityFailure` when the
/// revision can't be counted further.
void advanceRevision(SkillManifest &manifest);

/// Reads and writes the folder of one skill: its files, its staged copy, its replacement.
class SkillFolderStore
{
public:
    explicit SkillFolderStore(const Workspace &workspace)
        : SkillFolderStore(workspace.files, workspace.config)
    {}
    SkillFolderStore(FileSystem &files, const Configuration &config) : m_files(files), m_config(config) {}

    Stage makeStage() const { return {m_files, m_config.staging()}; }

    void writeSkillMD(const QString &text, const std::filesystem::path &folder) const;

    /// What a skill's manifest file holds.
    static QByteArray bytesOf(const SkillManifest &manifest);

    /// Throws `integrityFailure` for a manifest that a newer version wrote.
    void writeManifest(const SkillManifest &manifest, const std::filesystem::path &folder,
                       Durability durability) const;

    /// Throws `malformedManifest` with the manifest's path when it is missing, unreadable or wrong.
    SkillManifest readManifest(const std::filesystem::path &folder) const;
    SkillManifest readManifest(const Folder &parent, const std::string &name) const;

    /// The text of "SKILL.md", every character kept. Throws `missingSkillFile(slug)` when there is none, and
    /// a `filesystem_error` when it is not UTF-8.
    QString readSkillMD(const std::filesystem::path &folder, const QString &slug) const;

    /// The bytes of a file below the folder; nothing where no file is. Throws `invalidPath` for a path out of
    /// the folder, `symlinkUnsupported` for a link on the way, and a `filesystem_error` above the limit.
    std::optional<QByteArray> fileBytes(const std::filesystem::path &folder,
                                        const QString &relativePath) const;

    /// Deletes a folder. It is moved to the staging folder first, so that an interrupted deletion never
    /// leaves half a folder in its place.
    void discard(const std::filesystem::path &folder) const;

private:
    FileSystem &m_files;
    const Configuration &m_config;
};

} // namespace vornel

#pragma once

#include <VORNELInfrastructure/Skills/SkillFolderStore.h>
#include <VORNELInfrastructure/Tree/FileTreeSnapshot.h>

#include <map>

namespace vornel {

/// Skills that the user has named as folders or archives, copied into the staging folder, where nobody
/// changes them any more. What isn't taken from there is removed at the end.
class OfferedSkills
{
public:
    explicit OfferedSkills(const Workspace &workspace)
        : m_workspace(workspace), m_store(workspace), m_stage(m_store.makeStage())
    {}

    /// Copies what `source` holds. Throws what `SkillExchange::reviewAddition` says.
    void take(const std::filesystem::path &source);

    /// What each skill holds, where it stands now.
    const std::map<QString, FileTreeSnapshot> &bySlug() const { return m_skills; }

private:
    void takeArchive(const File &archive, const std::filesystem::path &path);

    /// Takes the skills in a folder; one that is a skill itself, under this slug.
    void takeFolder(const Folder &parent, const std::string &name, const QString &slug);
    void takeSkill(const Folder &parent, const std::string &name, const QString &slug);
    QString slugAtTop(const std::filesystem::path &folder, const std::filesystem::path &archive) const;

    const Workspace &m_workspace;
    SkillFolderStore m_store;
    Stage m_stage;
    std::map<QString, FileTreeSnapshot> m_skills;
};

} // namespace vornel

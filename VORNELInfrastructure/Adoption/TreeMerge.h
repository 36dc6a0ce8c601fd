#pragma once

#include <VORNELCore/Records/SkillMerge.h>
#include <VORNELInfrastructure/Tree/ComposedTree.h>

#include <map>
#include <set>

namespace vornel {

/// Joins what two copies of a tree have changed since a third one, their base.
class TreeMerge
{
public:
    /// All three trees must outlive the merge. The paths that are `unsettled` are for the user to decide,
    /// whatever the trees hold.
    TreeMerge(const FileSystem &files, const FileTreeSnapshot &base, const FileTreeSnapshot &claude,
              const FileTreeSnapshot &codex, std::set<std::string> unsettled = {});

    /// Goes through the trees once. What the user has settled is taken as he wants it where the three trees
    /// still hold what they held then.
    void run(const QList<MergeSettlement> &settlements);

    /// What is left to settle, by path. The tree is whole only without any.
    const QList<MergeConflict> &conflicts() const { return m_conflicts; }
    const ComposedTree &tree() const { return m_tree; }

private:
    using Entry = FileTreeSnapshot::Entry;

    /// The entry of one path in each tree, if there is one.
    struct Versions
    {
        const Entry *base = nullptr;
        const Entry *claude = nullptr;
        const Entry *codex = nullptr;
    };

    void merge(const std::string &path, const Versions &versions, const QList<MergeSettlement> &settlements);
    bool isDecided(const std::string &path) const;
    bool tookWholeFolder(const std::string &path);
    bool joinedTexts(const std::string &path, const Versions &versions, std::optional<QString> &marked);
    void settle(const MergeConflict &conflict, const QList<MergeSettlement> &settlements);
    QString basisOf(const std::string &path) const;

    const FileSystem &m_files;
    const FileTreeSnapshot &m_base;
    const FileTreeSnapshot &m_claude;
    const FileTreeSnapshot &m_codex;
    std::set<std::string> m_unsettled;
    std::map<std::string, Versions> m_paths;
    ComposedTree m_tree;
    QList<MergeConflict> m_conflicts;
    std::set<std::string> m_decided; ///< paths that have been decided with all that is below them
};

} // namespace vornel

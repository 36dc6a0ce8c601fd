#include "SetAsideRestore.h"

#include <VORNELInfrastructure/Adoption/ComposedRevision.h>
#include <VORNELInfrastructure/Disk/BestEffort.h>
#include <VORNELInfrastructure/Tree/SecureFileTree.h>
#include <VORNELInfrastructure/Workspace/Overview.h>

namespace vornel {

namespace fs = std::filesystem;

SkillDetail SetAsideRestore::asSkill(const QString &id, const QString &slug) const
{
    const fs::path copy = m_recovery.place(id);
    const SkillManifest manifest = m_authoring.manifestFor(copy, slug);
    SkillDetail made = m_authoring.add(manifest, [&](const fs::path &stage) {
        SecureFileTree::copyTree(m_workspace.files, copy, stage, TreeFilter::excludingManifest);
    });
    discardIfHeld(copy, slug);
    return made;
}

SkillDetail SetAsideRestore::asRevision(const QString &id, const QUuid &skillID,
                                        std::optional<qint64> expectedRevision) const
{
    const fs::path copy = m_recovery.place(id);
    const SkillRecord skill = m_authoring.recordAt(skillID, expectedRevision);
    ComposedTree tree;
    tree.takeAll(SecureFileTree::snapshot(m_workspace.files, copy, TreeFilter::excludingManifest));
    requireText(m_workspace, skill, tree);
    const bool isNew = tree.digest() != contentOf(m_workspace, skill).digest;
    SkillDetail made =
        isNew ? makeRevision(m_workspace, skill, std::move(tree)) : makeDetail(m_workspace, skill);
    discardIfHeld(copy, skill.manifest.slug);
    return made;
}

/// Deletes the copy once a skill's folder holds all of it. What can't be compared or deleted stays, which
/// doesn't undo the restoration.
void SetAsideRestore::discardIfHeld(const fs::path &copy, const QString &slug) const
{
    bestEffort([&] {
        const auto all = SecureFileTree::snapshot(m_workspace.files, copy, TreeFilter::all);
        const auto held = SecureFileTree::snapshot(m_workspace.files, m_workspace.config.canonical(slug),
                                                   TreeFilter::excludingManifest);
        if (all.isWhole && all.digest == held.digest)
            m_store.discard(copy);
    });
}

} // namespace vornel

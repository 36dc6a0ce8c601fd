#pragma once

#include <VORNELInfrastructure/Skills/SkillAuthoring.h>
#include <VORNELInfrastructure/Tree/ComposedTree.h>

namespace vornel {

/// What a skill's own folder holds, without the manifests.
FileTreeSnapshot contentOf(const Workspace &workspace, const SkillRecord &skill);

/// Throws `missingSkillFile` without a text, and a `filesystem_error` for one that isn't UTF-8: a revision
/// that the editor could not open would be of no use.
void requireText(const Workspace &workspace, const SkillRecord &skill, const ComposedTree &tree);

/// Makes the tree the skill's next revision, and installs it everywhere but in the targets that are left
/// alone.
SkillDetail makeRevision(const Workspace &workspace, const SkillRecord &skill, ComposedTree tree,
                         const QSet<TargetKind> &leftAlone = {});

} // namespace vornel

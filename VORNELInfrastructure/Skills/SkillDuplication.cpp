#include "SkillDuplication.h"

#include "SkillAuthoring.h"

#include <VORNELInfrastructure/Tree/SecureFileTree.h>
#include <VORNELInfrastructure/Workspace/Locating.h>

using namespace Qt::StringLiterals;

namespace vornel {

namespace {

/// What a copy of the skill holds; throws what makes it impossible to open.
ComposedTree copiedTree(const Workspace &workspace, const SkillRecord &skill)
{
    return locating(workspace, skill.folder, [&] {
        SkillFolderStore(workspace).readSkillMD(skill.folder, skill.manifest.slug);
        ComposedTree tree;
        tree.takeAll(SecureFileTree::snapshot(workspace.files, skill.folder, TreeFilter::excludingManifest));
        return tree;
    });
}

} // namespace

SkillDetail duplicateSkill(const Workspace &workspace, const QUuid &id, const QString &slug,
                           const std::optional<QString> &displayName)
{
    const SkillAuthoring authoring(workspace);
    const SkillRecord skill = activeRecord(workspace, id);
    const SkillManifest &original = skill.manifest;
    const SkillManifest copy =
        authoring.newManifest({.slug = slug,
                               .displayName = displayName.value_or(original.displayName + u" (copie)"_s),
                               .summary = original.summary,
                               .category = original.category,
                               .tags = original.tags,
                               .maturity = original.maturity,
                               .skillMD = {}});
    const ComposedTree tree = copiedTree(workspace, skill);
    return authoring.add(copy,
                         [&](const std::filesystem::path &stage) { tree.write(workspace.files, stage); });
}

} // namespace vornel

#include "ComposedRevision.h"

#include <VORNELCore/Errors/VORNELWorkspaceError.h>
#include <VORNELCore/Records/SerializedForms.h>
#include <VORNELCore/Records/SkillFiles.h>
#include <VORNELInfrastructure/Tree/SecureFileTree.h>

namespace vornel {

FileTreeSnapshot contentOf(const Workspace &workspace, const SkillRecord &skill)
{
    return SecureFileTree::snapshot(workspace.files, skill.folder, TreeFilter::excludingManifest);
}

void requireText(const Workspace &workspace, const SkillRecord &skill, const ComposedTree &tree)
{
    const std::optional<QByteArray> bytes = tree.bytesOf(workspace.files, SkillFiles::text);
    const std::optional<QString> text = textFromUtf8(bytes.value_or(QByteArray()));
    if (!text)
        throw std::filesystem::filesystem_error("decode", SkillFiles::text,
                                                std::make_error_code(std::errc::illegal_byte_sequence));
    if (text->trimmed().isEmpty())
        throw VORNELWorkspaceError::missingSkillFile(skill.manifest.slug);
}

/// The manifests further down in the skill's own folder belong to no copy, and stay where there is a folder.
SkillDetail makeRevision(const Workspace &workspace, const SkillRecord &skill, ComposedTree tree,
                         const QSet<TargetKind> &leftAlone)
{
    const auto compose = [&tree](const FileTreeSnapshot &former) {
        for (const FileTreeSnapshot::Entry &entry : former.entries) {
            if (!includes(TreeFilter::excludingManifest, entry.relativePath) &&
                !tree.isBelowFile(entry.relativePath))
                tree.take(former, entry);
        }
        return tree;
    };
    return SkillAuthoring(workspace).revise(skill, compose, leftAlone);
}

} // namespace vornel

#include "TargetComparer.h"

#include <VORNELCore/Errors/WorkspaceValidation.h>
#include <VORNELCore/Records/SerializedForms.h>
#include <VORNELInfrastructure/Skills/SkillFolderStore.h>
#include <VORNELInfrastructure/Tree/SecureFileTree.h>
#include <VORNELInfrastructure/Tree/TreeDifferences.h>
#include <VORNELInfrastructure/Workspace/Locating.h>

#include <algorithm>

namespace vornel {

namespace fs = std::filesystem;

namespace {

ComparedFolder summary(TargetKind target, const FileTreeSnapshot &content)
{
    ComparedFolder folder{.target = target};
    for (const FileTreeSnapshot::Entry &entry : content.entries) {
        if (entry.kind != FileTreeSnapshot::Entry::Kind::file)
            continue;
        folder.fileCount += 1;
        folder.size += entry.size;
        folder.modifiedAt = std::max(folder.modifiedAt,
                                     std::optional(QDateTime::fromSecsSinceEpoch(entry.modifiedAt, Qt::UTC)));
    }
    return folder;
}

} // namespace

TargetComparer::TargetComparer(const Workspace &workspace, const QString &slug)
    : m_workspace(workspace), m_slug(slug)
{
    WorkspaceValidation::validateSlug(slug);
}

TargetComparison TargetComparer::compare() const
{
    const auto contentIn = [this](TargetKind target) {
        const fs::path folder = folderIn(target);
        return locating(m_workspace, folder, [&] {
            return SecureFileTree::snapshot(m_workspace.files, folder, TreeFilter::excludingManifest);
        });
    };
    const FileTreeSnapshot claude = contentIn(TargetKind::claude);
    const FileTreeSnapshot codex = contentIn(TargetKind::codex);
    TargetComparison comparison{m_slug, summary(TargetKind::claude, claude),
                                summary(TargetKind::codex, codex), differences(claude, codex)};
    comparison.claude.isNewer = comparison.claude.modifiedAt > comparison.codex.modifiedAt;
    comparison.codex.isNewer = comparison.codex.modifiedAt > comparison.claude.modifiedAt;
    return comparison;
}

std::optional<QByteArray> TargetComparer::readFile(TargetKind target, const QString &relativePath) const
{
    return SkillFolderStore(m_workspace).fileBytes(folderIn(target), relativePath);
}

fs::path TargetComparer::folderIn(TargetKind target) const
{
    const fs::path &root = m_workspace.config.target(target);
    refuseLinkedRoot(m_workspace.files, root);
    return root / pathFromText(m_slug);
}

} // namespace vornel

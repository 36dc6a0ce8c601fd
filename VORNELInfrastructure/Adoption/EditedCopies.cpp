#include "EditedCopies.h"

#include <VORNELInfrastructure/History/SkillHistory.h>
#include <VORNELInfrastructure/Targets/TargetFolder.h>

namespace vornel {

std::optional<FileTreeSnapshot> EditedCopies::of(TargetKind target)
{
    const SkillManifest &manifest = m_skill.manifest;
    auto copy = TargetFolder(m_workspace, target).snapshot(manifest.slug.toStdString());
    if (!copy || copy->digest == m_content.digest || m_drift.of(copy->digest) == Drift::outdated ||
        SkillHistory(m_workspace)
            .wasMerged(manifest.id, originOfCopy(target), m_content.digest, copy->digest))
        return std::nullopt;
    return copy;
}

} // namespace vornel

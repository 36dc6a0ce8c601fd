#pragma once

#include <VORNELInfrastructure/Skills/SkillRecords.h>
#include <VORNELInfrastructure/Targets/CopyDrift.h>
#include <VORNELInfrastructure/Tree/FileTreeSnapshot.h>

#include <optional>

namespace vornel {

/// Finds the copies of a skill in which an assistant has changed something. A copy that can't be read is
/// thrown.
class EditedCopies
{
public:
    /// `content` is what the skill's own folder holds; both must outlive this.
    EditedCopies(const Workspace &workspace, const SkillRecord &skill, const FileTreeSnapshot &content)
        : m_workspace(workspace), m_skill(skill), m_content(content), m_drift(workspace, skill.manifest)
    {}

    /// What the copy holds; nothing where it is missing, holds what the skill or a kept revision does, or has
    /// become a part of the skill by a merge that was interrupted.
    std::optional<FileTreeSnapshot> of(TargetKind target);

private:
    const Workspace &m_workspace;
    const SkillRecord &m_skill;
    const FileTreeSnapshot &m_content;
    CopyDrift m_drift;
};

} // namespace vornel

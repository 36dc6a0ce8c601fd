#pragma once

#include <VORNELCore/Records/ImportModels.h>
#include <VORNELInfrastructure/Skills/SkillFolderStore.h>
#include <VORNELInfrastructure/Skills/SkillRecords.h>
#include <VORNELInfrastructure/Targets/TargetSynchronizer.h>

#include <functional>
#include <span>

namespace vornel {

/// Told how many of how many steps are done.
using Progress = std::function<void(int done, int total)>;

/// Brings the folders of a plan into the library.
class ImportCommit
{
public:
    explicit ImportCommit(const Workspace &workspace)
        : m_workspace(workspace), m_store(workspace), m_targets(workspace)
    {}

    /// Imports every candidate and the chosen side of every collision, by slug. Throws `unresolvedCollisions`
    /// before anything is written. A skill that is already active with the same content is adopted as it is,
    /// so that an interrupted commit can be repeated. Targets that could not be written are thrown as one
    /// `partialSync` at the end, when all skills are in the library.
    void run(const ImportPlan &plan, const Progress &progress);

private:
    struct StagedSkill;
    struct CommittedSkill;

    void importBatch(const QList<ImportCandidate> &batch, const std::function<void()> &staged);

    /// Stages all that the library and the targets need of a candidate; what went wrong is in the result.
    StagedSkill stage(const ImportCandidate &candidate) const;

    /// Copies the candidate's folder to a stage.
    FileTreeSnapshot stageContent(const ImportCandidate &candidate, const std::filesystem::path &stage) const;

    /// Adds the manifest, after what the text says of the skill.
    SkillManifest stageManifest(const ImportCandidate &candidate, const std::filesystem::path &stage) const;

    /// Puts the staged skills in their places.
    void commit(std::span<StagedSkill> skills);

    /// Throws why a skill isn't in the library or its history.
    void finish(const CommittedSkill &skill);

    void adopt(const ImportCandidate &candidate, const SkillRecord &skill) const;
    const SkillRecord *activeSkill(const QString &slug) const;

    /// Whether the folder holds what the scan found in the candidate's.
    bool holdsContent(const ImportCandidate &candidate, const std::filesystem::path &folder) const;

    const Workspace &m_workspace;
    SkillFolderStore m_store;
    TargetSynchronizer m_targets;
    TargetSynchronizer::Failures m_unusableTargets;
    QList<SkillRecord> m_active;
    QSet<TargetKind> m_failedTargets;
};

} // namespace vornel

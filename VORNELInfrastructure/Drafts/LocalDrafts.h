#pragma once

#include "SkillDrafts.h"

#include <VORNELInfrastructure/Workspace/SerialExecutor.h>

#include <memory>

namespace vornel {

/// The unsaved texts on this machine's disk. Operations run one at a time in the order of the calls, on a
/// thread of their own; they wait neither for the workspace's other operations nor for other programs.
class LocalDrafts : public DraftKeeping
{
public:
    /// All file operations go through `files`, which nobody else uses.
    LocalDrafts(std::shared_ptr<FileSystem> files, const std::filesystem::path &workspace);

    QFuture<void> keepDraft(QUuid id, UnsavedText text) override;
    QFuture<std::optional<KeptDraft>> draft(QUuid id) override;
    QFuture<void> discardDraft(QUuid id) override;
    QFuture<QList<DraftFile>> files() override;
    QFuture<void> discardFile(DraftFile file) override;

private:
    /// Runs `operation` after those that were called before it.
    template <typename Operation>
    auto perform(Operation operation);

    std::shared_ptr<FileSystem> m_files;
    SkillDrafts m_drafts;
    SerialExecutor m_executor; // last, so that it ends before what its functions use
};

} // namespace vornel

#pragma once

#include "SerialExecutor.h"
#include "Workspace.h"
#include "WorkspaceWatch.h"

#include <VORNELCore/Services/CreationReviewing.h>
#include <VORNELCore/Services/WindowServicing.h>
#include <VORNELInfrastructure/Import/PendingImport.h>
#include <VORNELInfrastructure/Undo/UndoJournal.h>

#include <memory>
#include <optional>

namespace vornel {

/// The workspace on this machine's disk. Operations run one at a time, in the order of the calls. Each locks
/// the workspace while it runs, so that several programs can share one.
class LocalWorkspaceService : public WindowServicing, public CreationReviewing
{
public:
    /// `watch`, if any, is told when an overview begins.
    explicit LocalWorkspaceService(std::shared_ptr<FileSystem> manager,
                                   FailureScope failureScope = FailureScope::Library,
                                   std::shared_ptr<WorkspaceWatch> watch = nullptr);

    QFuture<WorkspaceOverview> bootstrap(std::filesystem::path workspaceURL, std::filesystem::path claudeRoot,
                                         std::filesystem::path codexRoot) override;
    QFuture<ImportPlan> scanImports() override;
    QFuture<ImportPlan> resolveCollision(QUuid id, CollisionChoice choice) override;
    QFuture<WorkspaceOverview> commitImport(QUuid planID) override;
    QFuture<WorkspaceOverview> reload() override;
    QFuture<SkillDetail> createSkill(CreateSkillRequest request) override;
    QFuture<SkillDetail> loadSkill(QUuid id) override;
    QFuture<SkillDetail> saveSkill(QUuid id, qint64 expectedRevision, QString skillMD) override;
    QFuture<WorkspaceOverview> createCategory(QString name, QString colorHex) override;
    QFuture<WorkspaceOverview> updateCategory(QString id, QString name, QString colorHex) override;
    QFuture<WorkspaceOverview> deleteCategory(QString id) override;
    QFuture<WorkspaceOverview> assignSkills(QSet<QUuid> ids, QString to) override;
    QFuture<SkillDetail> synchronize(QUuid id) override;
    QFuture<WorkspaceOverview> moveToTrash(QUuid id) override;
    QFuture<WorkspaceOverview> moveToTrash(QSet<QUuid> ids) override;
    QFuture<WorkspaceOverview> restore(QUuid id) override;
    QFuture<WorkspaceOverview> deletePermanently(QUuid id) override;
    QFuture<WorkspaceOverview> emptyTrash() override;
    QFuture<QList<CopyInspection>> inspectCopies(QUuid id) override;
    QFuture<QHash<QUuid, QList<CopyInspection>>> wrongCopies() override;
    QFuture<std::optional<QByteArray>> readFile(QUuid id, std::optional<TargetKind> copy,
                                                QString relativePath) override;
    QFuture<QList<TargetOccupant>> occupants(QList<TargetPlace> places) override;
    QFuture<TargetComparison> compareTargets(QString slug) override;
    QFuture<std::optional<QByteArray>> readTargetFile(QString slug, TargetKind target,
                                                      QString relativePath) override;
    QFuture<QHash<QUuid, QDateTime>> trashDates() override;
    QFuture<ImportPlan> resolveCollisions(CollisionChoice choice) override;
    QFuture<ImportPlan> excludeFromImport(QString slug) override;
    QFuture<QList<NewSkill>> newSkills() override;
    QFuture<QList<NewSkill>> ignoreNewSkills(QList<NewSkill> skills) override;
    QFuture<QList<SyncOutcome>> synchronizeSkills(QList<QUuid> ids, std::stop_token stop) override;
    QFuture<SkillDetail> setAside(QUuid id, TargetKind target) override;
    QFuture<SkillDetail> adopt(QUuid id, TargetKind copy, std::optional<qint64> expectedRevision,
                               QStringList paths) override;
    QFuture<MergeResult> merge(QUuid id, std::optional<qint64> expectedRevision,
                               QList<MergeSettlement> settlements) override;
    QFuture<SkillDetail> adoptHandEdits(QUuid id, std::optional<qint64> expectedRevision) override;
    QFuture<QSet<QUuid>> editedByHand(QSet<QUuid> ids) override;
    QFuture<QList<HistoryEntry>> history(QUuid id) override;
    QFuture<HistoryComparison> compareVersion(QUuid id, QString entry, std::optional<QString> other) override;
    QFuture<std::optional<QByteArray>> readVersionFile(QUuid id, QString entry,
                                                       QString relativePath) override;
    QFuture<SkillDetail> revert(QUuid id, qint64 expectedRevision, QString entry, QStringList paths) override;
    QFuture<HistoryExtent> historyExtent() override;
    QFuture<HistoryExtent> prune(HistoryPruning pruning) override;
    std::optional<UndoStep> undoableStep() const override { return m_undo.step(); }
    QFuture<WorkspaceOverview> undo(QUuid step) override;
    QFuture<QList<SetAsideCopy>> setAsideCopies() override;
    QFuture<HistoryComparison> compareSetAside(QString id) override;
    QFuture<std::optional<QByteArray>> readSetAsideFile(QString id, QString relativePath) override;
    QFuture<SkillDetail> restoreAsSkill(QString id, QString slug) override;
    QFuture<SkillDetail> restoreAsRevision(QString id, QUuid skill,
                                           std::optional<qint64> expectedRevision) override;
    QFuture<QList<SetAsideCopy>> deleteSetAside(QStringList ids) override;
    QFuture<QList<SkillDetail>> setProperties(QList<QUuid> ids, PropertyChange change,
                                              std::optional<qint64> expectedRevision) override;
    QFuture<QList<SkillProperties>> reviewProperties(QList<QUuid> ids, PropertyChange change) override;
    QFuture<SkillDetail> changeFiles(QUuid id, QList<PathChange> changes, qint64 expectedRevision) override;
    QFuture<QStringList> emptyFolders(QUuid id) override;
    QFuture<std::shared_ptr<QFile>> openFile(QUuid id, QString relativePath) override;
    QFuture<SkillDetail> duplicateSkill(QUuid id, QString slug, std::optional<QString> displayName) override;
    QFuture<qint64> sizeOf(QUuid id) override;
    QFuture<SkillManifest> reviewCreation(CreateSkillRequest request) override;
    QFuture<QList<SkillProblem>> checkSkills(QList<QUuid> ids) override;
    QFuture<QList<SkillProblem>> checkText(QUuid id, QString text) override;
    QFuture<SkillExport> exportSkills(QList<QUuid> ids, std::filesystem::path file) override;
    QFuture<QList<SkillAddition>> reviewAddition(QList<std::filesystem::path> sources) override;
    QFuture<std::optional<QByteArray>> readAddedFile(QList<std::filesystem::path> sources,
                                                     SkillAddition reviewed, QString relativePath) override;
    QFuture<QList<SkillDetail>> addSkills(QList<std::filesystem::path> sources,
                                          QList<SkillAddition> reviewed) override;

private:
    /// Runs `operation` on the open workspace, locked, and tells what it has changed; throws
    /// `notBootstrapped` when none is open. What may change anything leaves nothing to undo, unless the
    /// caller remembers it.
    template <typename Operation>
    auto runLocked(LockMode mode, const Operation &operation, UndoRecording &changes);
    template <typename Operation>
    auto runLocked(LockMode mode, const Operation &operation);

    /// Runs `operation` so in its turn, on the service's own thread.
    template <typename Operation>
    auto perform(LockMode mode, Operation operation);

    /// `perform` for an operation that can be undone, and what it has changed before it failed as well.
    template <typename Operation>
    auto performUndoable(UndoableAction action, Operation operation);

    /// `perform` for an operation that changes the set of skills or categories, and returns the overview.
    template <typename Operation>
    QFuture<WorkspaceOverview> change(Operation operation);

    Workspace workspaceOf(const Configuration &config, UndoRecording &changes);
    WorkspaceOverview overview(const Workspace &workspace) const;

    std::shared_ptr<FileSystem> m_manager;
    FailureScope m_failureScope;
    std::shared_ptr<WorkspaceWatch> m_watch;
    std::optional<Configuration> m_configuration;
    PendingImport m_import;
    FailedSyncTargets m_failedSyncTargets;
    FoundCopies m_foundCopies;
    FileDigests m_digests;
    EntryTrees m_entries;
    UndoJournal m_undo;
    SerialExecutor m_executor; // last, so that it ends before what its functions use
};

} // namespace vornel

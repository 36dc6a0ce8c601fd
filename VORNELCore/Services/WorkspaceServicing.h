#pragma once

#include <VORNELCore/Records/ImportModels.h>
#include <VORNELCore/Records/WorkspaceModels.h>

#include <QFuture>
#include <QSet>

namespace vornel {

/// The workspace service as the application sees it. Operations run one at a time in the order of the calls;
/// each may fail with a VORNELWorkspaceError or a file-system error. `bootstrap` comes first: until it has
/// succeeded, every other operation fails with `notBootstrapped`.
class WorkspaceServicing
{
public:
    virtual ~WorkspaceServicing() = default;

    /// Checks the three roots, creates what the workspace lacks and opens it.
    virtual QFuture<WorkspaceOverview> bootstrap(std::filesystem::path workspaceURL,
                                                 std::filesystem::path claudeRoot,
                                                 std::filesystem::path codexRoot) = 0;

    /// Classifies what both assistants hold. The plan replaces any earlier one.
    virtual QFuture<ImportPlan> scanImports() = 0;

    /// Records the side to keep for a collision of the pending plan.
    virtual QFuture<ImportPlan> resolveCollision(QUuid id, CollisionChoice choice) = 0;

    /// Imports the pending plan. Progress runs from 0 to the number of skills.
    virtual QFuture<WorkspaceOverview> commitImport(QUuid planID) = 0;

    /// Reads everything again.
    virtual QFuture<WorkspaceOverview> reload() = 0;

    virtual QFuture<SkillDetail> createSkill(CreateSkillRequest request) = 0;
    virtual QFuture<SkillDetail> loadSkill(QUuid id) = 0;

    /// Replaces the text of "SKILL.md", unless the skill has moved on from `expectedRevision`.
    virtual QFuture<SkillDetail> saveSkill(QUuid id, qint64 expectedRevision, QString skillMD) = 0;

    virtual QFuture<WorkspaceOverview> createCategory(QString name, QString colorHex) = 0;
    virtual QFuture<WorkspaceOverview> updateCategory(QString id, QString name, QString colorHex) = 0;

    /// Removes a category; its skills move to the category "other".
    virtual QFuture<WorkspaceOverview> deleteCategory(QString id) = 0;

    virtual QFuture<WorkspaceOverview> assignSkills(QSet<QUuid> ids, QString to) = 0;

    /// Makes the copies in both assistants' folders equal to the canonical one.
    virtual QFuture<SkillDetail> synchronize(QUuid id) = 0;

    /// Takes skills out of the library and of both assistants' folders.
    virtual QFuture<WorkspaceOverview> moveToTrash(QUuid id) = 0;
    virtual QFuture<WorkspaceOverview> moveToTrash(QSet<QUuid> ids) = 0;

    /// Brings a trashed skill back into the library and both assistants' folders.
    virtual QFuture<WorkspaceOverview> restore(QUuid id) = 0;

    /// Deletes a trashed skill and its history.
    virtual QFuture<WorkspaceOverview> deletePermanently(QUuid id) = 0;

    /// Deletes every trashed skill and its history.
    virtual QFuture<WorkspaceOverview> emptyTrash() = 0;
};

} // namespace vornel

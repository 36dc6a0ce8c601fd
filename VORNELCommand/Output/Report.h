#pragma once

#include "SkillDrift.h"

#include <VORNELCore/Records/CopyInspection.h>
#include <VORNELCore/Records/ImportModels.h>
#include <VORNELCore/Records/NewSkill.h>
#include <VORNELCore/Records/SetAsideCopy.h>
#include <VORNELCore/Records/TargetComparison.h>
#include <VORNELCore/Records/WorkspaceModels.h>

#include <QHash>

/// The service's records as a person reads them in a terminal.
namespace vornel::Report {

/// The workspace, how many skills it holds, and those of which a copy needs attention.
QString overview(const WorkspaceOverview &overview, const SkillDrift &drift);

/// One row for each skill.
QString skills(const QList<SkillSummary> &skills, const QList<SkillCategory> &categories,
               const SkillDrift &drift);

/// One row for each skill of the trash, with the time at which it came there, if `dates` has it.
QString trashedSkills(const QList<SkillSummary> &skills, const QList<SkillCategory> &categories,
                      const QHash<QUuid, QDateTime> &dates);

/// Everything about one skill, and its text.
QString detail(const SkillDetail &detail, const SkillDrift &drift);

/// The state of each copy, with the reason of a failure or the cause of a difference, and the paths that
/// differ.
QString copies(const QList<CopyInspection> &copies);

/// What each folder holds and which is newer, and the paths that differ.
QString comparison(const TargetComparison &comparison);

/// One row for each skill: its revision and its state after an operation.
QString states(const QList<SkillDetail> &details, const SkillDrift &drift);
QString state(const SkillDetail &detail, const SkillDrift &drift);

/// What assistants have made since the last import, on a line of its own; nothing for none.
QString newSkills(const QList<NewSkill> &skills);

/// The skills whose own folder was edited by hand, on a line of its own; nothing for none.
QString editedByHand(const QStringList &slugs);

/// The paths that keep two copies from being merged.
QString conflicts(const QStringList &paths);

/// What can be imported, what collides, what is blocked and why.
QString plan(const ImportPlan &plan);

/// What a plan has brought into the library, and what stayed blocked.
QString imported(const ImportPlan &plan);

/// The categories, with the number of skills in each.
QString categories(const WorkspaceOverview &overview);

/// The skills in the trash, with the time at which each came there, if `dates` has it.
QString trash(const WorkspaceOverview &overview, const QHash<QUuid, QDateTime> &dates);

/// What lies in the recovery folder, a row for each, with as much of its name as tells it apart.
QString setAsideCopies(const QList<SetAsideCopy> &copies);

} // namespace vornel::Report

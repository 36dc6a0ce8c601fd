#pragma once

#include <VORNELCore/Records/SkillProblem.h>
#include <VORNELInfrastructure/Workspace/Workspace.h>

#include <QList>
#include <QUuid>

namespace vornel {

/// Checks these active skills, or all where there is no identifier, side by side: see `SkillChecking`.
QList<SkillProblem> checkSkills(const Workspace &workspace, const QList<QUuid> &ids);

/// Checks an active skill as it would be with another text.
QList<SkillProblem> checkText(const Workspace &workspace, const QUuid &id, const QString &text);

} // namespace vornel

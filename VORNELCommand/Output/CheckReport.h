#pragma once

#include <VORNELCore/Records/SkillProblem.h>

#include <QList>

namespace vornel::Report {

/// What a check has found, a section for each skill, and how much it is.
QString problems(const QList<SkillProblem> &problems);

} // namespace vornel::Report

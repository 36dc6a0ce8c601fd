#pragma once

#include <VORNELCore/Records/SkillProblem.h>
#include <VORNELInfrastructure/Skills/FrontMatter.h>

#include <QList>

namespace vornel {

/// What is wrong with the head of a skill's text. `slug` is the name of the skill's folder.
QList<SkillProblem> frontMatterProblems(const FrontMatter &head, const QString &slug);

} // namespace vornel

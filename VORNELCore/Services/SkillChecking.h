#pragma once

#include <VORNELCore/Records/SkillProblem.h>

#include <QFuture>
#include <QList>
#include <QUuid>

namespace vornel {

/// Tells what assistants will stumble over, and changes nothing. Each operation may fail with
/// `notBootstrapped`, `skillNotFound`, or a failure to read the library as a whole.
class SkillChecking
{
public:
    virtual ~SkillChecking() = default;

    /// The problems of these active skills, in their order, or of all in the overview's order; those of a
    /// skill by path and line. A skill that can't be read has that as its one problem.
    virtual QFuture<QList<SkillProblem>> checkSkills(QList<QUuid> ids) = 0;

    /// The problems that a skill would have with this text in place of its own.
    virtual QFuture<QList<SkillProblem>> checkText(QUuid id, QString text) = 0;
};

} // namespace vornel

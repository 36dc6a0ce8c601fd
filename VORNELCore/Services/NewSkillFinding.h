#pragma once

#include <VORNELCore/Records/NewSkill.h>

#include <QFuture>

namespace vornel {

/// Tells of the skills that assistants have made since the last import. May fail with `notBootstrapped` or a
/// file-system error.
class NewSkillFinding
{
public:
    virtual ~NewSkillFinding() = default;

    /// The folders of both targets that have a "SKILL.md" and whose name could be an active skill's but is
    /// none, by target and name; only their names are read. A target that can't be read has none.
    virtual QFuture<QList<NewSkill>> newSkills() = 0;

    /// Tells of these no more, and returns the others; an import still finds them. Forgets earlier ones that
    /// the library has by now or that are gone, as an import does.
    virtual QFuture<QList<NewSkill>> ignoreNewSkills(QList<NewSkill> skills) = 0;
};

} // namespace vornel

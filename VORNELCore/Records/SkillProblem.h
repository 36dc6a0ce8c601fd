#pragma once

#include "Enumerations.h"

#include <QString>

/// What a check has found: plain values. A property's name is also its key in JSON.
namespace vornel {

/// What keeps assistants from reading a skill, or makes it worse.
struct SkillProblem
{
    Q_GADGET
    Q_PROPERTY(QString slug MEMBER slug)
    Q_PROPERTY(QString rule MEMBER rule)
    Q_PROPERTY(vornel::ProblemSeverity severity MEMBER severity)
    Q_PROPERTY(QString path MEMBER path)
    Q_PROPERTY(qint64 line MEMBER line)
    Q_PROPERTY(QString message MEMBER message)

public:
    QString slug = {};
    QString rule = {}; ///< what was checked: "name-missing"
    ProblemSeverity severity = ProblemSeverity::error;
    QString path = {};    ///< of the file in the skill's folder
    qint64 line = 0;      ///< in the file, from 1; 0 for the whole file
    QString message = {}; ///< what is wrong and what mends it, in French

    bool operator==(const SkillProblem &) const = default;
};

} // namespace vornel

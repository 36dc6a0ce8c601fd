#pragma once

#include "Commands.h"

#include <VORNELCommand/Output/CommandFailure.h>
#include <VORNELCommand/Output/SkillDrift.h>
#include <VORNELCommand/Output/Terminal.h>
#include <VORNELCore/Records/RecordJson.h>

namespace vornel {

/// What one command works with.
struct Session
{
    const Invocation &invocation;
    const Services &services;
    const WorkspaceOverview &overview; ///< as it was when the command began
    SkillDrift drift;
};

/// Prints a record as JSON or, for people, as the text that `report` makes, which may ask why skills have
/// drifted.
template <typename Record, typename ReportText>
void output(const Session &session, const Record &record, const ReportText &report)
{
    if (session.invocation.has(QStringLiteral("json")))
        Terminal::print(
            QString::fromUtf8(RecordJson::document(session.drift.addedTo(RecordJson::encode(record)))));
    else if constexpr (std::is_invocable_v<const ReportText &, const Record &, const SkillDrift &>)
        Terminal::print(report(record, session.drift));
    else
        Terminal::print(report(record));
}

/// The failure that nothing is called `typed`.
CommandFailure unknownSkill(const QString &typed);

/// The skill that the user means: by its slug or, where none has it, by its identifier. Throws
/// `unknownSkill` for a text that is neither.
QUuid findSkill(const QString &typed, const QList<SkillSummary> &skills);

/// The same among the active skills.
QUuid activeSkill(const Session &session, const QString &typed);

/// The active skills that the user means, in their order and each once.
QList<QUuid> activeSkills(const Session &session, const QStringList &typed);

/// The revision that the skill must be at, if the user has named one.
std::optional<qint64> expectedRevision(const Session &session);

/// The slug of one of these skills; of any other, its identifier.
QString slugOf(const QUuid &id, const QList<SkillSummary> &skills);

/// The case of `E` that an option or operand names; the command line has been checked to name one.
template <typename E>
E caseOf(const QString &typed)
{
    return fromRawValue<E>(typed).value();
}

} // namespace vornel

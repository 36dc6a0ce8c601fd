#include "Command.h"

#include <VORNELCommand/Output/FailureReport.h>
#include <VORNELCommand/Output/Report.h>
#include <VORNELCore/Errors/ErrorMessage.h>
#include <VORNELCore/Records/SerializedForms.h>

#include <QJsonArray>

using namespace Qt::StringLiterals;

namespace vornel {

namespace {

QList<QUuid> skillsToSynchronize(const Session &session)
{
    if (!session.invocation.has(u"all"_s))
        return activeSkills(session, session.invocation.operands);
    QList<QUuid> ids;
    for (const SkillSummary &skill : session.overview.skills)
        ids.append(skill.id);
    return ids;
}

QList<CopyInspection> failedCopies(const Session &session, const QUuid &id)
{
    QList<CopyInspection> copies = session.services.copies.wrongCopies().result().value(id);
    copies.removeIf([](const CopyInspection &copy) { return copy.reason.isEmpty(); });
    return copies;
}

/// The first failure in the form that every command uses, and in "failures" each of them with its skill and
/// the copies that failed.
QJsonObject failuresObject(const Session &session, const QList<SyncOutcome> &failures)
{
    QJsonArray all;
    for (const SyncOutcome &failure : failures) {
        QJsonObject object = failureObject(failure.failure);
        object.insert(u"id"_s, uuidText(failure.id));
        object.insert(u"slug"_s, slugOf(failure.id, session.overview.skills));
        object.insert(u"copies"_s, RecordJson::encode(failedCopies(session, failure.id)));
        all.append(object);
    }
    QJsonObject object = failureObject(failures.first().failure);
    object.insert(u"failures"_s, all);
    return object;
}

void reportFailures(const Session &session, const QList<SyncOutcome> &failures)
{
    if (session.invocation.has(u"json"_s))
        return printFailure(failuresObject(session, failures));
    for (const SyncOutcome &failure : failures) {
        Terminal::printError(Terminal::printable(slugOf(failure.id, session.overview.skills) + u"\u00A0: "_s +
                                                 errorMessage(failure.failure)));
        for (const CopyInspection &copy : failedCopies(session, failure.id))
            Terminal::printError(Terminal::printable(u"  "_s + copy.failureText()));
    }
}

/// One skill that fails doesn't stop the others.
int sync(const Session &session)
{
    const QFuture<QList<SyncOutcome>> pass =
        session.services.repairs.synchronizeSkills(skillsToSynchronize(session), {});
    Terminal::followProgress(u"Synchronisation"_s, QFuture<void>(pass));
    QList<SkillDetail> details;
    QList<SyncOutcome> failures;
    for (const SyncOutcome &outcome : pass.result()) {
        if (outcome.detail)
            details.append(*outcome.detail);
        else
            failures.append(outcome);
    }
    if (failures.isEmpty() || (!details.isEmpty() && !session.invocation.has(u"json"_s)))
        output(session, details, Report::states);
    if (failures.isEmpty())
        return ExitCode::success;
    reportFailures(session, failures);
    return ExitCode::failure;
}

int setAside(const Session &session)
{
    const QStringList &operands = session.invocation.operands;
    const QUuid id = activeSkill(session, operands.at(0));
    output(session, session.services.repairs.setAside(id, caseOf<TargetKind>(operands.at(1))).result(),
           Report::state);
    return ExitCode::success;
}

} // namespace

QList<Command> syncCommands()
{
    const QString section = u"Écrire"_s;
    return {
        {{section, u"sync (SKILL… | --all)"_s,
          u"Réinstalle la copie de référence là où une copie diffère."_s},
         sync},
        {{section, u"set-aside SKILL "_s + alternatives<TargetKind>(),
          u"Garde dans .vornel/recovery une copie qui ne peut pas être lue, et en installe une nouvelle."_s},
         setAside},
    };
}

} // namespace vornel

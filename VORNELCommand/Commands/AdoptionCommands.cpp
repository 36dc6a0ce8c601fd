#include "Command.h"

#include <VORNELCommand/Output/Report.h>

#include <QJsonArray>

using namespace Qt::StringLiterals;

namespace vornel {

namespace {

/// The skill's own folder, as it is named beside the assistants.
constexpr QLatin1StringView library("library");

int adopt(const Session &session)
{
    const Invocation &invocation = session.invocation;
    const QUuid id = activeSkill(session, invocation.operands.at(0));
    const QString origin = invocation.operands.at(1);
    const QStringList paths = invocation.values.value(u"file"_s);
    CopyAdopting &adoptions = session.services.adoptions;
    if (origin != library)
        output(session,
               adoptions.adopt(id, caseOf<TargetKind>(origin), expectedRevision(session), paths).result(),
               Report::state);
    else if (paths.isEmpty())
        output(session, adoptions.adoptHandEdits(id, expectedRevision(session)).result(), Report::state);
    else
        throw UsageError(u"--file ne vaut que pour la copie d’un assistant."_s);
    return ExitCode::success;
}

/// Merges once more with one assistant's version of what is in conflict.
MergeResult mergePreferring(const Session &session, const QUuid &id, TargetKind preferred)
{
    CopyAdopting &adoptions = session.services.adoptions;
    MergeResult found = adoptions.merge(id, expectedRevision(session), {}).result();
    if (found.skill)
        return found;
    QList<MergeSettlement> settlements;
    for (const MergeConflict &conflict : found.conflicts)
        settlements.append({conflict.relativePath, conflict.basis, preferred});
    return adoptions.merge(id, expectedRevision(session), settlements).result();
}

QStringList pathsOf(const QList<MergeConflict> &conflicts)
{
    QStringList paths;
    for (const MergeConflict &conflict : conflicts)
        paths.append(conflict.relativePath);
    return paths;
}

void printMerge(const Session &session, const MergeResult &result)
{
    const QStringList conflicts = pathsOf(result.conflicts);
    if (!session.invocation.has(u"json"_s)) {
        Terminal::print(result.skill ? Report::state(*result.skill, session.drift)
                                     : Report::conflicts(conflicts));
        return;
    }
    const QJsonValue skill = result.skill ? session.drift.addedTo(RecordJson::encode(*result.skill))
                                          : QJsonValue(QJsonValue::Null);
    const QJsonObject merge{{u"conflicts"_s, QJsonArray::fromStringList(conflicts)}, {u"skill"_s, skill}};
    Terminal::print(QString::fromUtf8(RecordJson::document(merge)));
}

int merge(const Session &session)
{
    const QString prefer = u"prefer"_s;
    const QUuid id = activeSkill(session, session.invocation.operands.first());
    const MergeResult result =
        session.invocation.has(prefer)
            ? mergePreferring(session, id, caseOf<TargetKind>(session.invocation.value(prefer)))
            : session.services.adoptions.merge(id, expectedRevision(session), {}).result();
    printMerge(session, result);
    return result.skill ? ExitCode::success : ExitCode::needsAttention;
}

} // namespace

QList<Command> adoptionCommands()
{
    const QString section = u"Écrire"_s;
    return {
        {{section,
          u"adopt SKILL "_s + alternatives<TargetKind>() + u'|' + library +
              u" [--expect RÉVISION] [--file CHEMIN]…"_s,
          u"Fait de la copie d’un assistant, ou du dossier modifié à la main, la révision suivante."_s},
         adopt},
        {{section, u"merge SKILL [--prefer "_s + alternatives<TargetKind>() + u"] [--expect RÉVISION]"_s,
          u"Réunit ce que les deux copies ont de modifié\u00A0; code 1 si un conflit reste, et rien n’est changé."_s},
         merge},
    };
}

} // namespace vornel

#include "Command.h"

#include <VORNELCommand/Output/HistoryReport.h>
#include <VORNELCommand/Output/Report.h>

using namespace Qt::StringLiterals;

namespace vornel {

namespace {

const QString keepOption = u"keep"_s;
const QString ageOption = u"older-than"_s;
const QString rehearsalOption = u"dry-run"_s;

/// The versions that the user may mean: by the number of a revision, or by how their names begin.
QList<HistoryEntry> meantBy(const QString &typed, QList<HistoryEntry> versions)
{
    bool isNumber = false;
    const qint64 revision = typed.toLongLong(&isNumber);
    versions.removeIf([&](const HistoryEntry &version) {
        return isNumber ? version.kind != HistoryKind::revision || version.revision != revision
                        : !version.entry.startsWith(typed);
    });
    return versions;
}

/// The name of the version that the user means; of several with one content, the newest.
QString findVersion(const Session &session, const QUuid &id, const QString &typed)
{
    const QList<HistoryEntry> meant = meantBy(typed, session.services.history.history(id).result());
    if (meant.isEmpty())
        throw CommandFailure(u"versionNotFound"_s, u"L’historique n’a pas de version "_s + typed + u'.');
    for (const HistoryEntry &version : meant) {
        if (version.digest != meant.first().digest)
            throw CommandFailure(u"versionAmbiguous"_s,
                                 u"«\u00A0"_s + typed +
                                     u"\u00A0» peut désigner plusieurs versions différentes."_s);
    }
    return meant.first().entry;
}

HistoryPruning typedPruning(const Invocation &invocation)
{
    if (!invocation.has(keepOption) && !invocation.has(ageOption))
        throw UsageError(u"--prune demande --keep ou --older-than."_s);
    QString days = invocation.value(ageOption, u"0"_s);
    days.remove(u'd').remove(u'j');
    return {.keep = invocation.value(keepOption, u"0"_s).toLongLong(),
            .days = days.toLongLong(),
            .isRehearsal = invocation.has(rehearsalOption)};
}

int prune(const Session &session)
{
    const HistoryPruning pruning = typedPruning(session.invocation);
    output(session, session.services.history.prune(pruning).result(),
           [&](const HistoryExtent &extent) { return Report::pruned(extent, pruning.isRehearsal); });
    return ExitCode::success;
}

int history(const Session &session)
{
    const Invocation &invocation = session.invocation;
    if (invocation.has(u"prune"_s))
        return prune(session);
    for (const QString &option : {keepOption, ageOption, rehearsalOption}) {
        if (invocation.has(option))
            throw UsageError(u"--"_s + option + u" ne vaut qu’avec --prune."_s);
    }
    const QUuid id =
        findSkill(invocation.operands.first(), session.overview.skills + session.overview.trashedSkills);
    output(session, session.services.history.history(id).result(), Report::history);
    return ExitCode::success;
}

int revert(const Session &session)
{
    const Invocation &invocation = session.invocation;
    const QUuid id = activeSkill(session, invocation.operands.at(0));
    const QString version = findVersion(session, id, invocation.operands.at(1));
    output(session,
           session.services.history
               .revert(id, invocation.value(u"expect"_s).toLongLong(), version,
                       invocation.values.value(u"file"_s))
               .result(),
           Report::state);
    return ExitCode::success;
}

} // namespace

int diffVersions(const Session &session, const QUuid &id)
{
    const Invocation &invocation = session.invocation;
    const QString other = u"with"_s;
    const QString version = findVersion(session, id, invocation.value(u"entry"_s));
    const auto against = invocation.has(other)
                             ? std::optional(findVersion(session, id, invocation.value(other)))
                             : std::nullopt;
    const HistoryComparison comparison =
        session.services.history.compareVersion(id, version, against).result();
    output(session, comparison, Report::versions);
    return comparison.differences.isEmpty() ? ExitCode::success : ExitCode::needsAttention;
}

QList<Command> historyCommands()
{
    const QString section = u"Historique"_s;
    return {
        {{section, u"history (SKILL | --prune [--keep NOMBRE] [--older-than DURÉE] [--dry-run])"_s,
          u"Les versions gardées, la plus récente d’abord\u00A0; --prune supprime celles qui ne sont ni "
          "parmi les NOMBRE dernières de leur compétence, ni remplacées depuis moins de DURÉE (90d). Sans "
          "l’une de ces options, l’autre décide seule\u00A0; les deux dernières révisions restent toujours."_s},
         history},
        {{section, u"revert SKILL VERSION --expect RÉVISION [--file CHEMIN]…"_s,
          u"Fait d’une version gardée, ou de certains de ses fichiers, la révision suivante."_s},
         revert},
    };
}

} // namespace vornel

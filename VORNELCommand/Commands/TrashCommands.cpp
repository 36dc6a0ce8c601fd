#include "Command.h"
#include "OccupiedPlaces.h"

#include <VORNELCommand/Output/Report.h>

using namespace Qt::StringLiterals;

namespace vornel {

namespace {

/// Prints what the trash holds after a change.
void outputTrash(const Session &session, const WorkspaceOverview &overview)
{
    output(session, overview, [&session](const WorkspaceOverview &changed) {
        return Report::trash(changed, session.services.trash.trashDates().result());
    });
}

QUuid trashedSkill(const Session &session)
{
    return findSkill(session.invocation.operands.first(), session.overview.trashedSkills);
}

int trash(const Session &session)
{
    const QList<QUuid> ids = activeSkills(session, session.invocation.operands);
    outputTrash(session,
                session.services.workspace.moveToTrash(QSet<QUuid>(ids.begin(), ids.end())).result());
    return ExitCode::success;
}

int restore(const Session &session)
{
    const QUuid id = trashedSkill(session);
    refuseOccupied(session, placesOfRestored(id, slugOf(id, session.overview.trashedSkills)));
    output(session, session.services.workspace.restore(id).result(), Report::overview);
    return ExitCode::success;
}

int deletePermanently(const Session &session)
{
    outputTrash(session, session.services.workspace.deletePermanently(trashedSkill(session)).result());
    return ExitCode::success;
}

int emptyTrash(const Session &session)
{
    outputTrash(session, session.services.workspace.emptyTrash().result());
    return ExitCode::success;
}

} // namespace

QList<Command> trashCommands()
{
    const QString section = u"Corbeille"_s;
    return {
        {{section, u"trash SKILL…"_s, u"Met des compétences à la corbeille."_s}, trash},
        {{section, u"restore SKILL [--replace]"_s, u"Restaure une compétence."_s}, restore},
        {{section, u"delete SKILL"_s, u"Supprime définitivement une compétence de la corbeille."_s},
         deletePermanently},
        {{section, u"empty-trash"_s, u"Vide la corbeille, définitivement."_s}, emptyTrash},
    };
}

} // namespace vornel

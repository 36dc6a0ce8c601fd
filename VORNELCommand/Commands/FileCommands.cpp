#include "Command.h"
#include "InputFile.h"

#include <VORNELCommand/Output/Report.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vornel {

namespace {

/// Makes these changes of the skill that the first operand names.
int change(const Session &session, const QList<PathChange> &changes)
{
    const Invocation &invocation = session.invocation;
    const QUuid id = activeSkill(session, invocation.operands.first());
    const qint64 revision = invocation.value(u"expect"_s).toLongLong();
    output(session, session.services.files.changeFiles(id, changes, revision).result(), Report::state);
    return ExitCode::success;
}

/// A change of each path that is named after the skill.
template <typename Change>
int changeEach(const Session &session)
{
    QList<PathChange> changes;
    for (const QString &path : session.invocation.operands.sliced(1))
        changes.append(Change{path});
    return change(session, changes);
}

int put(const Session &session)
{
    const Invocation &invocation = session.invocation;
    return change(session,
                  {WrittenFile{invocation.operands.at(1), bytesOfFile(invocation.value(u"file"_s))}});
}

int move(const Session &session)
{
    const QStringList &operands = session.invocation.operands;
    return change(session, {MovedPath{operands.at(1), operands.at(2)}});
}

} // namespace

QList<Command> fileCommands()
{
    const QString section = u"Écrire"_s;
    return {
        {{section, u"put SKILL CHEMIN --file FICHIER --expect RÉVISION"_s,
          u"Écrit un fichier d’une compétence, nouveau ou à la place de l’ancien."_s},
         put},
        {{section, u"mkdir SKILL CHEMIN… --expect RÉVISION"_s,
          u"Crée des dossiers vides dans une compétence."_s},
         changeEach<NewFolder>},
        {{section, u"mv SKILL CHEMIN NOUVEAU --expect RÉVISION"_s,
          u"Renomme ou déplace un fichier ou un dossier d’une compétence."_s},
         move},
        {{section, u"rm SKILL CHEMIN… --expect RÉVISION"_s,
          u"Supprime des fichiers et des dossiers d’une compétence\u00A0; l’historique les garde."_s},
         changeEach<RemovedPath>},
    };
}

} // namespace vornel

#include "Command.h"
#include "InputFile.h"

#include <VORNELCommand/Output/Report.h>

#include <QSet>

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

/// Each path with the file that stands at the same place among those that were named.
int put(const Session &session)
{
    const QStringList paths = session.invocation.operands.sliced(1);
    const QStringList files = session.invocation.values.value(u"file"_s);
    if (files.size() != paths.size())
        throw UsageError(u"Indiquez un --file pour chaque chemin."_s);
    if (files.count(u"-"_s) > 1)
        throw UsageError(u"--file - ne vaut que pour un seul chemin."_s);
    if (QSet(paths.begin(), paths.end()).size() != paths.size())
        throw UsageError(u"Le même chemin est donné deux fois."_s);
    QList<PathChange> changes;
    for (qsizetype index = 0; index < paths.size(); ++index)
        changes.append(WrittenFile{paths.at(index), bytesOfFile(files.at(index))});
    return change(session, changes);
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
        {{section, u"put SKILL CHEMIN… --file FICHIER… --expect RÉVISION"_s,
          u"Écrit des fichiers d’une compétence, nouveaux ou à la place des anciens\u00A0; "
          "un --file par chemin, dans le même ordre."_s},
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

#include "Command.h"
#include "OccupiedPlaces.h"

#include <VORNELCommand/Output/Report.h>

using namespace Qt::StringLiterals;

namespace vornel {

namespace {

/// What the user means: by its whole name or an unambiguous beginning of it.
SetAsideCopy findCopy(const QString &typed, const QList<SetAsideCopy> &copies)
{
    constexpr qsizetype shortest = 4; // so that a slip of the pen deletes nothing
    QList<SetAsideCopy> found;
    for (const SetAsideCopy &copy : copies) {
        if (copy.id == typed)
            return copy;
        if (typed.size() >= shortest && copy.id.startsWith(typed, Qt::CaseInsensitive))
            found.append(copy);
    }
    if (found.isEmpty())
        throw CommandFailure(u"copyNotFound"_s, u"Copie mise de côté introuvable\u00A0: "_s + typed);
    if (found.size() > 1)
        throw CommandFailure(u"copyAmbiguous"_s,
                             u"Plusieurs copies mises de côté commencent par «\u00A0%1\u00A0»."_s.arg(typed));
    return found.first();
}

int listSetAside(const Session &session)
{
    output(session, session.services.recovery.setAsideCopies().result(), Report::setAsideCopies);
    return ExitCode::success;
}

SkillDetail restoreAsSkill(const Session &session, const SetAsideCopy &copy)
{
    const QString slug = session.invocation.value(u"slug"_s, copy.slug);
    if (slug.isEmpty())
        throw UsageError(
            u"Le nom de cette copie ne dit pas de quelle compétence elle vient\u00A0: il faut --slug."_s);
    session.services.creations
        .reviewCreation({slug, slug, {}, SkillCategory::otherID, {}, Maturity::active, {}})
        .result();
    refuseOccupied(session, placesOf({slug}));
    return session.services.recovery.restoreAsSkill(copy.id, slug).result();
}

int restoreSetAside(const Session &session)
{
    const Invocation &invocation = session.invocation;
    const bool isRevision = invocation.has(u"into"_s);
    if (isRevision && (invocation.has(u"slug"_s) || invocation.has(u"replace"_s)))
        throw UsageError(
            u"--slug et --replace ne valent que pour une nouvelle compétence, donc sans --into."_s);
    if (!isRevision && invocation.has(u"expect"_s))
        throw UsageError(u"--expect ne vaut qu’avec --into."_s);
    RecoveryKeeping &recovery = session.services.recovery;
    const SetAsideCopy copy = findCopy(invocation.operands.first(), recovery.setAsideCopies().result());
    const SkillDetail restored =
        isRevision ? recovery
                         .restoreAsRevision(copy.id, activeSkill(session, invocation.value(u"into"_s)),
                                            expectedRevision(session))
                         .result()
                   : restoreAsSkill(session, copy);
    output(session, restored, Report::state);
    return ExitCode::success;
}

int deleteSetAside(const Session &session)
{
    RecoveryKeeping &recovery = session.services.recovery;
    const QList<SetAsideCopy> copies = recovery.setAsideCopies().result();
    QStringList ids;
    for (const QString &typed : session.invocation.operands)
        ids.append(findCopy(typed, copies).id);
    output(session, recovery.deleteSetAside(ids).result(), Report::setAsideCopies);
    return ExitCode::success;
}

} // namespace

QList<Command> recoveryCommands()
{
    const QString section = u"Corbeille"_s;
    return {
        {{section, u"recovery list"_s, u"Les copies mises de côté."_s}, listSetAside},
        {{section, u"recovery restore ID [--slug SLUG] [--into SKILL] [--expect RÉVISION] [--replace]"_s,
          u"Fait d’une copie mise de côté une nouvelle compétence ou, avec --into, une révision."_s},
         restoreSetAside},
        {{section, u"recovery delete ID…"_s, u"Supprime définitivement des copies mises de côté."_s},
         deleteSetAside},
    };
}

} // namespace vornel

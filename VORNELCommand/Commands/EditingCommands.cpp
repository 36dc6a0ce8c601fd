#include "Command.h"
#include "InputFile.h"
#include "OccupiedPlaces.h"

#include <VORNELCommand/Output/Report.h>
#include <VORNELCore/Library/NewSkillText.h>

using namespace Qt::StringLiterals;

namespace vornel {

namespace {

int create(const Session &session)
{
    const Invocation &invocation = session.invocation;
    CreateSkillRequest request{invocation.operands.first(),
                               invocation.value(u"name"_s),
                               invocation.value(u"summary"_s),
                               invocation.value(u"category"_s, SkillCategory::otherID),
                               invocation.value(u"tags"_s).split(u','),
                               caseOf<Maturity>(invocation.value(u"maturity"_s, rawValue(Maturity::draft))),
                               std::nullopt};
    request.skillMD =
        invocation.has(u"file"_s) ? textOfFile(invocation.value(u"file"_s)) : readableSkillText(request);
    // What the service would refuse anyway is told before what stands in the way.
    session.services.creations.reviewCreation(request).result();
    refuseOccupied(session, placesOf({request.slug}));
    output(session, session.services.workspace.createSkill(request).result(), Report::state);
    return ExitCode::success;
}

int duplicate(const Session &session)
{
    const Invocation &invocation = session.invocation;
    const QUuid id = activeSkill(session, invocation.operands.first());
    const QString slug = invocation.operands.last();
    const auto name = invocation.has(u"name"_s) ? std::optional(invocation.value(u"name"_s)) : std::nullopt;
    session.services.creations
        .reviewCreation({slug, name.value_or(slug), {}, SkillCategory::otherID, {}, Maturity::draft, {}})
        .result();
    refuseOccupied(session, placesOf({slug}));
    output(session, session.services.files.duplicateSkill(id, slug, name).result(), Report::state);
    return ExitCode::success;
}

int save(const Session &session)
{
    const qint64 revision = session.invocation.value(u"expect"_s).toLongLong();
    const QString text = textOfFile(session.invocation.value(u"file"_s));
    const QUuid id = activeSkill(session, session.invocation.operands.first());
    output(session, session.services.workspace.saveSkill(id, revision, text).result(), Report::state);
    return ExitCode::success;
}

} // namespace

QList<Command> editingCommands()
{
    const QString section = u"Écrire"_s;
    return {
        {{section,
          u"create IDENTIFIANT --name NOM [--summary TEXTE] [--category CATÉGORIE] [--tags A,B] "
          "[--maturity "_s +
              alternatives<Maturity>() + u"] [--file FICHIER] [--replace]"_s,
          u"Crée une compétence."_s},
         create},
        {{section, u"duplicate SKILL IDENTIFIANT [--name NOM] [--replace]"_s,
          u"Fait d’une compétence une autre, avec les mêmes fichiers et propriétés."_s},
         duplicate},
        {{section, u"save SKILL --expect RÉVISION --file FICHIER"_s,
          u"Remplace le SKILL.md, si la compétence en est encore à cette révision."_s},
         save},
    };
}

} // namespace vornel

#include "Command.h"

#include <VORNELCommand/Output/Report.h>

using namespace Qt::StringLiterals;

namespace vornel {

namespace {

std::optional<QString> typedText(const Invocation &invocation, const QString &option)
{
    return invocation.has(option) ? std::optional(invocation.value(option)) : std::nullopt;
}

QStringList typedTags(const Invocation &invocation, const QString &option)
{
    return invocation.value(option).split(u',', Qt::SkipEmptyParts);
}

PropertyChange typedChange(const Invocation &invocation)
{
    PropertyChange change{.slug = typedText(invocation, u"slug"_s),
                          .displayName = typedText(invocation, u"name"_s),
                          .summary = typedText(invocation, u"summary"_s),
                          .category = typedText(invocation, u"category"_s),
                          .addedTags = typedTags(invocation, u"add-tags"_s),
                          .removedTags = typedTags(invocation, u"remove-tags"_s)};
    if (invocation.has(u"tags"_s))
        change.tags = typedTags(invocation, u"tags"_s);
    if (invocation.has(u"maturity"_s))
        change.maturity = caseOf<Maturity>(invocation.value(u"maturity"_s));
    change.isFromText = invocation.has(u"from-skill-md"_s);
    if (change == PropertyChange())
        throw UsageError(u"Indiquez au moins une propriété à changer."_s);
    return change;
}

QString states(const QList<SkillDetail> &details, const SkillDrift &drift)
{
    QString lines;
    for (const SkillDetail &detail : details)
        lines += Report::state(detail, drift);
    return lines;
}

int set(const Session &session)
{
    const PropertyChange change = typedChange(session.invocation);
    const QList<QUuid> ids = activeSkills(session, session.invocation.operands);
    if (session.invocation.has(u"expect"_s) && ids.size() > 1)
        throw UsageError(u"--expect ne vaut que pour une seule compétence."_s);
    output(session,
           session.services.properties.setProperties(ids, change, expectedRevision(session)).result(),
           states);
    return ExitCode::success;
}

} // namespace

QList<Command> propertyCommands()
{
    return {
        {{u"Écrire"_s,
          u"set SKILL… [--from-skill-md] [--name NOM] [--summary TEXTE] [--tags A,B] [--add-tags A,B] "
          u"[--remove-tags A,B] "
          "[--maturity "_s +
              alternatives<Maturity>() +
              u"] [--category CATÉGORIE] [--slug IDENTIFIANT] [--expect RÉVISION]"_s,
          u"Change ce qui est dit d’une ou de plusieurs compétences\u00A0; --slug renomme aussi les copies, "
          "--from-skill-md prend le nom et la description dans l’en-tête du texte."_s},
         set},
    };
}

} // namespace vornel

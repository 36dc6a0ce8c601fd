#include "Studio.h"

#include <QCoro/QCoroTask>

using namespace Qt::StringLiterals;

namespace vornel {
namespace {

/// What a user says of a skill, beyond what its text does.
struct Classification
{
    QString slug;
    QString name;
    QString category;
    QStringList tags;
    Maturity maturity = Maturity::active;
};

QList<Classification> classifications()
{
    return {
        {u"audit-accessibilite"_s, u"Audit d’accessibilité"_s, u"design"_s, {u"audit"_s, u"web"_s}},
        {u"compte-rendu-reunion"_s,
         u"Compte rendu de réunion"_s,
         u"knowledge"_s,
         {u"rédaction"_s, u"équipe"_s}},
        {u"journal-de-decisions"_s, u"Journal de décisions"_s, u"knowledge"_s, {u"équipe"_s}},
        {u"maquette-vers-composant"_s, u"Maquette en composant"_s, u"design"_s, {u"web"_s}, Maturity::ready},
        {u"migration-sql"_s, u"Migration SQL"_s, u"development"_s, {u"mises à jour"_s}},
        {u"notes-de-version"_s, u"Notes de version"_s, u"operations"_s, {u"rédaction"_s}},
        {u"redaction-technique"_s, u"Rédaction technique"_s, u"knowledge"_s, {u"rédaction"_s}},
        {u"relecture-de-code"_s, u"Relecture de code"_s, u"quality"_s, {u"équipe"_s}},
        {u"revue-de-securite"_s, u"Revue de sécurité"_s, u"quality"_s, {u"audit"_s, u"sécurité"_s}},
        {u"tests-de-charge"_s, u"Tests de charge"_s, u"quality"_s, {u"web"_s}, Maturity::draft},
        {u"tri-des-tickets"_s, u"Tri des tickets"_s, u"operations"_s, {u"équipe"_s}},
        {u"veille-technique"_s, u"Veille technique"_s, u"knowledge"_s, {u"équipe"_s}},
    };
}

} // namespace

void Studio::classifySkills()
{
    for (const Classification &each : classifications()) {
        const PropertyChange change{.displayName = each.name,
                                    .category = each.category,
                                    .addedTags = each.tags,
                                    .maturity = each.maturity,
                                    .isFromText = true};
        QCoro::waitFor(model().setProperties({idOf(each.slug)}, change, {}));
    }
    quieten();
}

} // namespace vornel

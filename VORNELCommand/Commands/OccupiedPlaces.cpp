#include "OccupiedPlaces.h"

#include <VORNELCommand/Output/CommandFailure.h>
#include <VORNELCore/Records/RecordJson.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vornel {

namespace {

QString linesFor(const QList<TargetOccupant> &occupants)
{
    QString lines;
    for (const TargetOccupant &occupant : occupants) {
        lines += u"  "_s + occupant.assistant() + u"  "_s + occupant.shownPath() + u'\n';
        if (!occupant.refusal.isEmpty())
            lines += u"      "_s + occupant.refusal + u'\n';
    }
    return lines;
}

QString messageFor(const QList<TargetOccupant> &occupants)
{
    const bool isOne = occupants.size() == 1;
    const QString replaceable =
        isOne ? u"Un dossier que VORNEL n’a pas installé occupe déjà cette place\u00A0:\n%1"
                "Rien n’a été écrit. Avec --replace, il est remplacé, et gardé dans l’historique."_s
              : u"Des dossiers que VORNEL n’a pas installés occupent déjà ces places\u00A0:\n%1"
                "Rien n’a été écrit. Avec --replace, ils sont remplacés, et gardés dans l’historique."_s;
    const QString refused = isOne ? u"Ce qui occupe cette place ne peut pas être remplacé\u00A0:\n%1"
                                    "Rien n’a été écrit. Déplacez-le d’abord."_s
                                  : u"Ce qui occupe ces places ne peut pas être remplacé\u00A0:\n%1"
                                    "Rien n’a été écrit. Déplacez-le d’abord."_s;
    return (occupants.first().refusal.isEmpty() ? replaceable : refused).arg(linesFor(occupants));
}

} // namespace

void refuseOccupied(const Session &session, const QList<TargetPlace> &places)
{
    QList<TargetOccupant> occupants = session.services.copies.occupants(places).result();
    const bool isReplaceable = std::ranges::all_of(occupants, &QString::isEmpty, &TargetOccupant::refusal);
    if (occupants.isEmpty() || (isReplaceable && session.invocation.has(u"replace"_s)))
        return;
    if (!isReplaceable)
        occupants.removeIf([](const TargetOccupant &occupant) { return occupant.refusal.isEmpty(); });
    throw CommandFailure(u"targetOccupied"_s, messageFor(occupants),
                         {{u"occupants"_s, RecordJson::encode(QVariant::fromValue(occupants))}});
}

} // namespace vornel

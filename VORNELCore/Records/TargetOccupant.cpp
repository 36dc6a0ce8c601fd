#include "TargetOccupant.h"

#include "SerializedForms.h"

namespace vornel {

QString TargetOccupant::shownPath() const
{
    return pathText(path);
}

QUrl TargetOccupant::url() const
{
    return QUrl::fromLocalFile(pathText(refusal.isEmpty() ? path : path.parent_path()));
}

QList<TargetPlace> placesOf(const QStringList &slugs)
{
    QList<TargetPlace> places;
    for (const QString &slug : slugs) {
        for (const TargetKind target : allCases<TargetKind>())
            places.append({target, slug});
    }
    return places;
}

QList<TargetPlace> placesOfRestored(const QUuid &id, const QString &slug)
{
    QList<TargetPlace> places = placesOf({slug});
    for (TargetPlace &place : places)
        place.restored = id;
    return places;
}

QList<TargetPlace> placesFilledBy(const ImportPlan &plan)
{
    QList<TargetPlace> places;
    for (const ImportCandidate &candidate : plan.candidates) {
        if (candidate.classification != ImportClassification::singleSource)
            continue;
        for (const TargetPlace &place : placesOf({candidate.slug})) {
            if (place.target != candidate.source)
                places.append(place);
        }
    }
    return places;
}

} // namespace vornel

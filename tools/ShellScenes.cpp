#include "Scenes.h"

using namespace Qt::StringLiterals;

namespace vornel {

void photographEmptyDestinations(Photographer &photographer, Studio &studio)
{
    AppModel &model = studio.model();
    studio.quieten();
    model.setSelectedDestination(Destination::needsAttention);
    photographer.take(u"attention-empty"_s);
    model.setSelectedDestination(Destination::trash);
    photographer.take(u"trash-empty"_s);
    model.setSelectedDestination(Destination::library);
}

void photographError(Photographer &photographer, Studio &studio)
{
    studio.model().restore(QUuid::createUuid());
    studio.settle();
    Studio::rest();
    photographer.take(u"error"_s);
    studio.model().clearError();
}

void photographClosing(Photographer &photographer, Studio &studio)
{
    studio.model().reload();
    photographer.close();
    photographer.takeAtOnce(u"closing"_s);
    studio.settle();
}

} // namespace vornel

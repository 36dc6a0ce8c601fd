#include "Scenes.h"

using namespace Qt::StringLiterals;

namespace vornel {

void photographEmptyDestinations(Photographer &photographer, Stage &stage)
{
    AppModel &model = stage.model();
    stage.quieten();
    model.setSelectedDestination(Destination::needsAttention);
    photographer.take(u"attention-empty"_s);
    model.setSelectedDestination(Destination::trash);
    photographer.take(u"trash-empty"_s);
    model.setSelectedDestination(Destination::library);
}

void photographError(Photographer &photographer, Stage &stage)
{
    stage.model().restore(QUuid::createUuid());
    stage.settle();
    Stage::rest();
    photographer.take(u"error"_s);
    stage.model().clearError();
}

void photographClosing(Photographer &photographer, Stage &stage)
{
    stage.model().reload();
    photographer.close();
    photographer.takeAtOnce(u"closing"_s);
    stage.settle();
}

} // namespace vornel

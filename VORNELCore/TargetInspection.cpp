#include "TargetInspection.h"

#include "ImportModels.h"
#include "Wording.h"

namespace vornel {

QString TargetInspection::assistant() const
{
    return assistantName(target);
}

QString TargetInspection::stateText() const
{
    return Wording::syncState(state);
}

} // namespace vornel

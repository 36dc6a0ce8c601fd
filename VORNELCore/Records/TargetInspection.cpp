#include "TargetInspection.h"

#include "ImportModels.h"
#include "SerializedForms.h"

#include <VORNELCore/Library/Wording.h>

#include <algorithm>

namespace vornel {

QString TargetInspection::shownPath() const
{
    return pathText(path);
}

QUrl TargetInspection::folderURL() const
{
    return QUrl::fromLocalFile(pathText(path.parent_path()));
}

QString TargetInspection::assistant() const
{
    return assistantName(target);
}

QString TargetInspection::stateText() const
{
    return Wording::syncState(state, drift);
}

Drift worstDrift(const QList<TargetInspection> &copies)
{
    Drift worst = Drift::none;
    for (const TargetInspection &copy : copies)
        worst = std::max(worst, copy.drift);
    return worst;
}

} // namespace vornel

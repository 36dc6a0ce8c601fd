#include "CopyInspection.h"

#include "ImportModels.h"
#include "SerializedForms.h"

#include <VORNELCore/Library/Wording.h>

#include <algorithm>

namespace vornel {

QString CopyInspection::shownPath() const
{
    return pathText(path);
}

QUrl CopyInspection::folderURL() const
{
    return QUrl::fromLocalFile(pathText(path.parent_path()));
}

QString CopyInspection::assistant() const
{
    return assistantName(target);
}

QString CopyInspection::stateText() const
{
    return Wording::syncState(state, drift);
}

Drift worstDrift(const QList<CopyInspection> &copies)
{
    Drift worst = Drift::none;
    for (const CopyInspection &copy : copies)
        worst = std::max(worst, copy.drift);
    return worst;
}

} // namespace vornel

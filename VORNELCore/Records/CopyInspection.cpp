#include "CopyInspection.h"

#include "ImportModels.h"
#include "SerializedForms.h"

#include <VORNELCore/Library/Wording.h>

#include <algorithm>

using namespace Qt::StringLiterals;

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

QString CopyInspection::failureText() const
{
    return reason.isEmpty() ? QString() : assistant() + u"\u00A0: "_s + reason + u" ("_s + shownPath() + u')';
}

Drift worstDrift(const QList<CopyInspection> &copies)
{
    Drift worst = Drift::none;
    for (const CopyInspection &copy : copies)
        worst = std::max(worst, copy.drift);
    return worst;
}

} // namespace vornel

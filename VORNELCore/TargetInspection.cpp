#include "TargetInspection.h"

#include "ImportModels.h"
#include "SerializedForms.h"
#include "Wording.h"

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
    return Wording::syncState(state);
}

} // namespace vornel

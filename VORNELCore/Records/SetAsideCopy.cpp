#include "SetAsideCopy.h"

#include "ImportModels.h"
#include "SerializedForms.h"

#include <VORNELCore/Library/Wording.h>

using namespace Qt::StringLiterals;

namespace vornel {

QVariant SetAsideCopy::originValue() const
{
    return origin ? QVariant::fromValue(*origin) : QVariant();
}

QString SetAsideCopy::originText() const
{
    if (!origin)
        return {};
    const auto assistant = fromRawValue<TargetKind>(rawValue(*origin));
    return assistant ? assistantName(*assistant) : u"VORNEL"_s;
}

QString SetAsideCopy::contentText() const
{
    return Wording::countedFiles(fileCount) + u", "_s + Wording::fileSize(size);
}

QString SetAsideCopy::momentText() const
{
    return Wording::dayAndTime(date, currentInstant());
}

} // namespace vornel

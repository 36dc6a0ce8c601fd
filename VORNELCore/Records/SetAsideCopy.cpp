#include "SetAsideCopy.h"

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
    return origin ? Wording::origin(*origin) : QString();
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

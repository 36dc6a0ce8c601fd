#include "TargetComparison.h"

#include "ImportModels.h"
#include "SerializedForms.h"

#include <VORNELCore/Library/Wording.h>

using namespace Qt::StringLiterals;

namespace vornel {

QVariant ComparedFolder::modifiedValue() const
{
    return modifiedAt ? QVariant::fromValue(*modifiedAt) : QVariant();
}

QString ComparedFolder::assistant() const
{
    return assistantName(target);
}

QString ComparedFolder::contentText() const
{
    return Wording::countedFiles(fileCount) + u", "_s + Wording::fileSize(size);
}

QString ComparedFolder::momentText() const
{
    return modifiedAt ? u"modifié le "_s + Wording::dayAndTime(*modifiedAt, currentInstant()) : QString();
}

} // namespace vornel

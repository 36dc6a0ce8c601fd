#pragma once

#include <VORNELCore/Records/CopyInspection.h>

#include <QCoro/QCoroTask>
#include <QFuture>

namespace vornel {

/// What an inspection of the copies of a skill finds; nothing where the skill itself can't be read, for then
/// there is nothing to compare them with.
QCoro::Task<QList<CopyInspection>> foundCopies(QFuture<QList<CopyInspection>> inspection);

} // namespace vornel

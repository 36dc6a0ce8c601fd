#include "FoundCopies.h"

#include <QCoro/QCoroFuture>

namespace vornel {

QCoro::Task<QList<CopyInspection>> foundCopies(QFuture<QList<CopyInspection>> inspection)
try {
    co_return co_await inspection;
} catch (const std::exception &) {
    co_return {};
}

} // namespace vornel

#pragma once

#include <QDateTime>
#include <QFuture>
#include <QHash>
#include <QUuid>

namespace vornel {

/// Looks into the trash, and changes nothing. May fail with `notBootstrapped` or a file-system error.
class TrashInspecting
{
public:
    virtual ~TrashInspecting() = default;

    /// When each trashed skill came there (UTC), by its identifier.
    virtual QFuture<QHash<QUuid, QDateTime>> trashDates() = 0;
};

} // namespace vornel

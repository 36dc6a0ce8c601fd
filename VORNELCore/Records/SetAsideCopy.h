#pragma once

#include "Enumerations.h"

#include <QDateTime>
#include <QString>
#include <QVariant>

#include <optional>

/// What lies in the recovery folder: plain values. A property's name is also its key in JSON.
namespace vornel {

/// A folder that was taken out of its place and is kept: an assistant's copy of a skill that went to the
/// trash, or one that was set aside.
struct SetAsideCopy
{
    Q_GADGET
    Q_PROPERTY(QString id MEMBER id)
    Q_PROPERTY(QString slug MEMBER slug)
    Q_PROPERTY(vornel::VersionOrigin origin MEMBER origin)
    Q_PROPERTY(QDateTime date MEMBER date)
    Q_PROPERTY(qint64 fileCount MEMBER fileCount)
    Q_PROPERTY(qint64 size MEMBER size)
    Q_PROPERTY(QString reason MEMBER reason)

public:
    QString id; ///< its name in the recovery folder
    QString slug = {};
    VersionOrigin origin = VersionOrigin::library;
    QDateTime date = {};  ///< when it was moved there (UTC)
    qint64 fileCount = 0; ///< hidden files too
    qint64 size = 0;      ///< of all files, in bytes
    QString reason = {};  ///< why it can't be brought back, for the user; empty where it can

    bool operator==(const SetAsideCopy &) const = default;
};

} // namespace vornel

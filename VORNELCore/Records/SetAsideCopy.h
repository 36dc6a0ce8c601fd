#pragma once

#include "Enumerations.h"

#include <QDateTime>
#include <QString>
#include <QVariant>

#include <optional>

/// What lies in the recovery folder: plain values. A property's name is also its key in JSON.
namespace vornel {

/// What was taken out of its place and is kept: an assistant's copy of a skill that went to the trash or one
/// that was set aside, what a skill had replaced that was deleted for good, what an interruption left, or
/// anything else that somebody has put there.
struct SetAsideCopy
{
    Q_GADGET
    Q_PROPERTY(QString id MEMBER id)
    Q_PROPERTY(QString slug MEMBER slug)
    Q_PROPERTY(QVariant origin READ originValue)
    Q_PROPERTY(QDateTime date MEMBER date)
    Q_PROPERTY(qint64 fileCount MEMBER fileCount)
    Q_PROPERTY(qint64 size MEMBER size)
    Q_PROPERTY(QString reason MEMBER reason)
    Q_PROPERTY(QString name READ shownName STORED false)
    Q_PROPERTY(QString originText READ originText STORED false)
    Q_PROPERTY(QString contentText READ contentText STORED false)
    Q_PROPERTY(QString momentText READ momentText STORED false)

public:
    QString id;                               ///< its name in the recovery folder
    QString slug = {};                        ///< of its skill; empty where the name tells none
    std::optional<VersionOrigin> origin = {}; ///< where it stood; absent where the name doesn't tell
    QDateTime date = {};                      ///< when it was moved there (UTC)
    qint64 fileCount = 0;                     ///< hidden files too
    qint64 size = 0;                          ///< of all files, in bytes
    QString reason = {}; ///< why it can't be brought back, for the user; empty where it can

    /// The origin, or an invalid variant.
    QVariant originValue() const;

    /// The skill's slug or, where that isn't known, the name in the recovery folder.
    QString shownName() const { return slug.isEmpty() ? id : slug; }

    /// Where it stood, as the user reads it: the assistant, "VORNEL", or empty.
    QString originText() const;

    /// "3 fichiers, 1,4 ko", "22 novembre à 14:32".
    QString contentText() const;
    QString momentText() const;

    bool operator==(const SetAsideCopy &) const = default;
};

} // namespace vornel

#pragma once

#include "ImportModels.h"

#include <QStringList>
#include <QUrl>

namespace vornel {

/// The place of a skill's copy in a target, whether a copy is there or not.
struct TargetPlace
{
    TargetKind target;
    QString slug;
    QUuid restored = {}; ///< the trashed skill that is to be restored there, if one is; otherwise null

    bool operator==(const TargetPlace &) const = default;
};

/// Something that stands where a copy is to be installed, and is no copy itself.
struct TargetOccupant
{
    Q_GADGET
    Q_PROPERTY(vornel::TargetKind target MEMBER target)
    Q_PROPERTY(QString slug MEMBER slug)
    Q_PROPERTY(QString path READ shownPath)
    Q_PROPERTY(QString refusal MEMBER refusal)
    Q_PROPERTY(QUrl url READ url STORED false)
    Q_PROPERTY(QString assistant READ assistant STORED false)

public:
    TargetKind target = TargetKind::claude;
    QString slug;
    std::filesystem::path path;
    QString refusal = {}; ///< why no copy can take its place, for the user; empty where one can

    QString shownPath() const;

    /// The address with which the desktop opens it; where no copy can take its place, that of the folder that
    /// it is in.
    QUrl url() const;

    /// The name of the assistant in whose folder it is.
    QString assistant() const { return assistantName(target); }

    bool operator==(const TargetOccupant &) const = default;
};

/// The places of the copies of skills with these slugs, in each target.
QList<TargetPlace> placesOf(const QStringList &slugs);

/// The places of the copies of a skill that is to be restored.
QList<TargetPlace> placesOfRestored(const QUuid &id, const QString &slug);

/// The places where an import puts copies of skills that only the other assistant has. Where both have the
/// skill, the user has already chosen what is replaced.
QList<TargetPlace> placesFilledBy(const ImportPlan &plan);

} // namespace vornel

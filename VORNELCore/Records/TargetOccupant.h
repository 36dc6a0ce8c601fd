#pragma once

#include "ImportModels.h"

#include <QStringList>
#include <QUrl>

namespace vornel {

/// Where an assistant has its copy of a skill.
struct TargetPlace
{
    TargetKind target;
    QString slug;
    QUuid restored = {}; ///< the skill that comes there from the trash; null for any other

    bool operator==(const TargetPlace &) const = default;
};

/// What stands where an install would put a copy, and isn't one.
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

    /// By which the desktop opens it or, where no copy can take its place, the folder that it is in.
    QUrl url() const;

    /// The name of the assistant in whose folder it is.
    QString assistant() const { return assistantName(target); }

    bool operator==(const TargetOccupant &) const = default;
};

/// The places that skills of these slugs take.
QList<TargetPlace> placesOf(const QStringList &slugs);

/// The places that a skill takes when it is restored.
QList<TargetPlace> placesOfRestored(const QUuid &id, const QString &slug);

/// The places that an import fills besides those where the skills are found. Where both assistants have the
/// skill, what is replaced is the user's choice.
QList<TargetPlace> placesFilledBy(const ImportPlan &plan);

} // namespace vornel

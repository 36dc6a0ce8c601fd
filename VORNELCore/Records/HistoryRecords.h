#pragma once

#include "CopyInspection.h"

#include <QDateTime>
#include <QStringList>

/// What a skill's history holds: plain values. A property's name is also its key in JSON.
namespace vornel {

/// A version of a skill that is kept.
struct HistoryEntry
{
    Q_GADGET
    Q_PROPERTY(QString entry MEMBER entry)
    Q_PROPERTY(vornel::HistoryKind kind MEMBER kind)
    Q_PROPERTY(qint64 revision MEMBER revision)
    Q_PROPERTY(vornel::VersionOrigin origin MEMBER origin)
    Q_PROPERTY(QDateTime date MEMBER date)
    Q_PROPERTY(QString digest MEMBER digest)
    Q_PROPERTY(bool isCurrent MEMBER isCurrent)

public:
    QString entry; ///< its name, by which it is known among those of its skill
    HistoryKind kind = HistoryKind::revision;
    qint64 revision = 0; ///< that of the skill when the version was kept; 0 where that wasn't noted
    VersionOrigin origin = VersionOrigin::library;
    QDateTime date = {};    ///< when the revision was made, or the version replaced (UTC)
    QString digest = {};    ///< that of a copy of it; empty where the version can't be read
    bool isCurrent = false; ///< whether it is what the library holds now

    bool operator==(const HistoryEntry &) const = default;
};

/// One version of a skill, and what a later or another one has otherwise.
struct HistoryComparison
{
    Q_GADGET
    Q_PROPERTY(QStringList files MEMBER files)
    Q_PROPERTY(QList<vornel::FileDifference> differences MEMBER differences)

public:
    QStringList files = {};                 ///< those of the version, by path, without the manifest
    QList<FileDifference> differences = {}; ///< by path: what only the other one has is added

    bool operator==(const HistoryComparison &) const = default;
};

/// Which versions are no longer wanted: of each skill those that are both older than the newest `keep` and
/// were replaced `days` ago or earlier, a revision by the next one. What the library has held at its last two
/// revisions always stays.
struct HistoryPruning
{
    qint64 keep = 0;
    qint64 days = 0;
    bool isRehearsal = false; ///< whether it is only to be told what would go
};

/// How much of the history it is about.
struct HistoryExtent
{
    Q_GADGET
    Q_PROPERTY(qint64 entries MEMBER entries)
    Q_PROPERTY(qint64 size MEMBER size)

public:
    qint64 entries = 0;
    qint64 size = 0; ///< bytes on the disk; a file that several versions share counts once

    bool operator==(const HistoryExtent &) const = default;
};

} // namespace vornel

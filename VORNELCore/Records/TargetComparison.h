#pragma once

#include "CopyInspection.h"

#include <QDateTime>
#include <QVariant>

#include <optional>

/// What was found out about both targets' folders of one name: plain values. A property's name is also its
/// key in JSON.
namespace vornel {

/// What the folder in one target holds.
struct ComparedFolder
{
    Q_GADGET
    Q_PROPERTY(vornel::TargetKind target MEMBER target)
    Q_PROPERTY(qint64 fileCount MEMBER fileCount)
    Q_PROPERTY(qint64 size MEMBER size)
    Q_PROPERTY(QVariant modifiedAt READ modifiedValue)
    Q_PROPERTY(bool isNewer MEMBER isNewer)
    Q_PROPERTY(QString assistant READ assistant STORED false)
    Q_PROPERTY(QString contentText READ contentText STORED false)
    Q_PROPERTY(QString momentText READ momentText STORED false)

public:
    TargetKind target = TargetKind::claude;
    qint64 fileCount = 0;
    qint64 size = 0;                          ///< of all files, in bytes
    std::optional<QDateTime> modifiedAt = {}; ///< when a file was last written (UTC); absent without one
    bool isNewer = false;                     ///< whether that was after any file of the other folder

    /// That moment, or an invalid variant.
    QVariant modifiedValue() const;

    /// The name of the assistant whose folder it is.
    QString assistant() const;

    /// How many files it holds and of which size, and when one was last written, as the user reads it:
    /// "3 fichiers, 1,4 ko", "modifié le 22 novembre à 14:32".
    QString contentText() const;
    QString momentText() const;

    bool operator==(const ComparedFolder &) const = default;
};

/// In what both folders differ.
struct TargetComparison
{
    Q_GADGET
    Q_PROPERTY(QString slug MEMBER slug)
    Q_PROPERTY(vornel::ComparedFolder claude MEMBER claude)
    Q_PROPERTY(vornel::ComparedFolder codex MEMBER codex)
    Q_PROPERTY(QList<vornel::FileDifference> differences MEMBER differences)

public:
    QString slug;
    ComparedFolder claude = {.target = TargetKind::claude};
    ComparedFolder codex = {.target = TargetKind::codex};
    QList<FileDifference> differences = {}; ///< by path: what Codex has that Claude hasn't is added

    bool operator==(const TargetComparison &) const = default;
};

} // namespace vornel

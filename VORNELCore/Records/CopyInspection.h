#pragma once

#include "Enumerations.h"

#include <QString>
#include <QUrl>

#include <filesystem>

/// What a look into the installed copies of a skill found: plain values. A property's name is also its key in
/// JSON.
namespace vornel {

/// One entry in which a copy differs from the canonical folder.
struct FileDifference
{
    Q_GADGET
    Q_PROPERTY(QString relativePath MEMBER relativePath)
    Q_PROPERTY(vornel::FileChange change MEMBER change)

public:
    QString relativePath; ///< below the skill's folder; that of a folder ends in "/"
    FileChange change = FileChange::changed;

    bool operator==(const FileDifference &) const = default;
};

/// How the copy in one assistant's folder stands against the canonical folder.
struct CopyInspection
{
    Q_GADGET
    Q_PROPERTY(vornel::TargetKind target MEMBER target)
    Q_PROPERTY(vornel::SyncState state MEMBER state)
    Q_PROPERTY(vornel::Drift drift MEMBER drift)
    Q_PROPERTY(QList<vornel::FileDifference> differences MEMBER differences)
    Q_PROPERTY(QString reason MEMBER reason)
    Q_PROPERTY(QString path READ shownPath)
    Q_PROPERTY(bool isUnreadable MEMBER isUnreadable)
    Q_PROPERTY(QUrl folderURL READ folderURL STORED false)
    Q_PROPERTY(QString assistant READ assistant STORED false)
    Q_PROPERTY(QString stateText READ stateText STORED false)

public:
    TargetKind target = TargetKind::claude;
    SyncState state = SyncState::unknown;
    Drift drift = Drift::none;              ///< where the content differs
    QList<FileDifference> differences = {}; ///< by path; a folder only where nothing in it is listed
    QString reason = {};                    ///< of a failure, for the user; empty in any other state
    std::filesystem::path path = {};        ///< where the copy stands, or would
    bool isUnreadable = false; ///< whether the copy itself can't be looked at: no synchronisation replaces it

    QString shownPath() const;

    /// By which the desktop opens the assistant's folder, in which the copy is.
    QUrl folderURL() const;

    /// What the user reads.
    QString assistant() const;
    QString stateText() const;

    bool operator==(const CopyInspection &) const = default;
};

/// The drift that is told of a skill with these copies: the worst of theirs.
Drift worstDrift(const QList<CopyInspection> &copies);

} // namespace vornel

#pragma once

#include "Enumerations.h"

#include <QString>
#include <QUrl>

#include <filesystem>

/// What was found out about the copies of a skill: plain values. A property's name is also its key in JSON.
namespace vornel {

/// A file or folder in which a copy differs from the canonical folder.
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
    Q_PROPERTY(bool isAdoptable READ isAdoptable STORED false)

public:
    TargetKind target = TargetKind::claude;
    SyncState state = SyncState::unknown;
    Drift drift = Drift::none;              ///< why the content differs, if it does
    QList<FileDifference> differences = {}; ///< by path; a folder only where nothing in it is listed
    QString reason = {};                    ///< of a failure, for the user; empty in any other state
    std::filesystem::path path = {};        ///< where the copy stands, or would
    bool isUnreadable = false; ///< whether the copy itself can't be read: then no synchronisation replaces it

    QString shownPath() const;

    /// The address of the target, with which the desktop opens it.
    QUrl folderURL() const;

    /// The assistant and the state, as the user reads them.
    QString assistant() const;
    QString stateText() const;

    /// Whether the copy holds, as far as is known, what no revision of the skill does, so that it is worth
    /// keeping.
    bool isAdoptable() const { return drift > Drift::outdated; }

    /// Names the assistant, the reason of a failure and the place; empty without a reason.
    QString failureText() const;

    bool operator==(const CopyInspection &) const = default;
};

/// The worst drift among the copies of a skill, which is the one shown for the skill.
Drift worstDrift(const QList<CopyInspection> &copies);

} // namespace vornel

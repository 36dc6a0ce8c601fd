#pragma once

#include <VORNELCore/Records/HistoryRecords.h>
#include <VORNELCore/Records/SetAsideCopy.h>
#include <VORNELCore/Records/WorkspaceModels.h>

#include <QByteArray>
#include <QFuture>

#include <optional>

namespace vornel {

/// What lies in the recovery folder: to look at, to bring back, to delete. Each operation may fail with
/// `notBootstrapped` or a file-system error, those on one copy with `integrityFailure` where there is none of
/// that name, and with what a walk over it throws.
class RecoveryKeeping
{
public:
    virtual ~RecoveryKeeping() = default;

    /// All that lies there, the newest first, but for what the next operation puts back in its place.
    virtual QFuture<QList<SetAsideCopy>> setAsideCopies() = 0;

    /// Its files, and how it differs from the active skill of its slug; without one, there are no
    /// differences.
    virtual QFuture<HistoryComparison> compareSetAside(QString id) = 0;

    /// The bytes of a file in it; nothing where no file is. Fails with `invalidPath` for a path out of it,
    /// and with `symlinkUnsupported` for a link on the way.
    virtual QFuture<std::optional<QByteArray>> readSetAsideFile(QString id, QString relativePath) = 0;

    /// Makes a skill of its own of it, under this slug, named as an import would name it. Fails as a creation
    /// does, and with `missingSkillFile`. What was set aside then goes if the skill holds all of it: hidden
    /// files and manifests are never taken.
    virtual QFuture<SkillDetail> restoreAsSkill(QString id, QString slug) = 0;

    /// Makes it the next revision of an active skill, as an adoption does, with its failures; makes none
    /// where the library holds the same already. What was set aside then goes in the same way.
    virtual QFuture<SkillDetail> restoreAsRevision(QString id, QUuid skill,
                                                   std::optional<qint64> expectedRevision) = 0;

    /// Deletes these for good, passes over those that are gone already, and returns what is left.
    virtual QFuture<QList<SetAsideCopy>> deleteSetAside(QStringList ids) = 0;
};

} // namespace vornel

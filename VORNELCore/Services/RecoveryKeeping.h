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
/// that name.
class RecoveryKeeping
{
public:
    virtual ~RecoveryKeeping() = default;

    /// The copies that were set aside, the newest first.
    virtual QFuture<QList<SetAsideCopy>> setAsideCopies() = 0;

    /// Its files, and how it differs from a skill: from the active one of its slug, or from none.
    virtual QFuture<HistoryComparison> compareSetAside(QString id) = 0;

    /// The bytes of a file in it; nothing where no file is.
    virtual QFuture<std::optional<QByteArray>> readSetAsideFile(QString id, QString relativePath) = 0;

    /// Makes a skill of its own of it, under this slug. Fails as a creation does. What was set aside then
    /// goes, unless it holds hidden files, which no skill does.
    virtual QFuture<SkillDetail> restoreAsSkill(QString id, QString slug) = 0;

    /// Makes it the next revision of a skill, as a save does, and goes then in the same way.
    virtual QFuture<SkillDetail> restoreAsRevision(QString id, QUuid skill, qint64 expectedRevision) = 0;

    /// Deletes these for good.
    virtual QFuture<QList<SetAsideCopy>> deleteSetAside(QStringList ids) = 0;
};

} // namespace vornel

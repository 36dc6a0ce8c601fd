#pragma once

#include <VORNELCore/Records/HistoryRecords.h>
#include <VORNELCore/Records/WorkspaceModels.h>

#include <QByteArray>
#include <QFuture>

#include <optional>

namespace vornel {

/// What is kept of the skills: to look at, to bring back, and to make smaller. Each operation may fail with
/// `notBootstrapped` or a file-system error, those on a skill with `skillNotFound`, those on an entry with
/// `integrityFailure` where the history has none of that name.
class HistoryKeeping
{
public:
    virtual ~HistoryKeeping() = default;

    /// The versions of an active or trashed skill, the newest first.
    virtual QFuture<QList<HistoryEntry>> history(QUuid id) = 0;

    /// What differs between a version and `other`, or what the library holds now.
    virtual QFuture<HistoryComparison> compareVersion(QUuid id, QString entry,
                                                      std::optional<QString> other) = 0;

    /// The bytes of a file of a version; nothing where no file is. Fails with `invalidPath` for a path out of
    /// it, and with `symlinkUnsupported` for a link on the way.
    virtual QFuture<std::optional<QByteArray>> readVersionFile(QUuid id, QString entry,
                                                               QString relativePath) = 0;

    /// Makes a version the skill's next revision, as a save does; with `paths`, only these files and folders
    /// of it. Makes none where the library holds the same already. Fails with `revisionConflict` when the
    /// skill isn't at the expected revision, `missingSkillFile` when no text would be left, `partialSync`, or
    /// `integrityFailure` for a path that neither side has.
    virtual QFuture<SkillDetail> revert(QUuid id, qint64 expectedRevision, QString entry,
                                        QStringList paths) = 0;

    /// How much all skills' histories take.
    virtual QFuture<HistoryExtent> historyExtent() = 0;

    /// Deletes the versions that aren't wanted any more, those of trashed skills too. Returns what has gone,
    /// or would go.
    virtual QFuture<HistoryExtent> prune(HistoryPruning pruning) = 0;
};

} // namespace vornel

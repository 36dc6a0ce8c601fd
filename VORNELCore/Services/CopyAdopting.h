#pragma once

#include <VORNELCore/Records/SkillMerge.h>

#include <QFuture>
#include <QStringList>

namespace vornel {

/// Takes into the library what was written elsewhere than in the editor: each operation makes the next
/// revision of a skill as a save does, with its history, and installs it. It makes none where the library
/// holds the same already. It may fail with `notBootstrapped`, `skillNotFound`, `revisionConflict` when the
/// skill isn't at the expected revision, `missingSkillFile` when no text would be left, `partialSync`, what a
/// walk over a copy throws, or a file-system error.
class CopyAdopting
{
public:
    virtual ~CopyAdopting() = default;

    /// Takes the content of a copy. With `paths`, only these files and folders of it: then the copy itself
    /// stays as it is, with all else that differs. A missing copy fails with `integrityFailure`, a path that
    /// neither side has too.
    virtual QFuture<SkillDetail> adopt(QUuid id, TargetKind copy, std::optional<qint64> expectedRevision,
                                       QStringList paths) = 0;

    /// Joins what both copies have changed since the revision that they were made from, file by file, and the
    /// texts among them line by line. A copy that is missing or holds an earlier revision has changed
    /// nothing. Conflicts without a settlement end the merge before anything is written.
    virtual QFuture<MergeResult> merge(QUuid id, std::optional<qint64> expectedRevision,
                                       QList<MergeSettlement> settlements) = 0;

    /// Makes a revision of what was edited by hand in the skill's own folder. A copy that an assistant has
    /// edited stays as it is.
    virtual QFuture<SkillDetail> adoptHandEdits(QUuid id, std::optional<qint64> expectedRevision) = 0;

    /// Those of the skills whose folder holds what the history has of no entry of their revision, so that it
    /// was edited by hand. One that can't be read is none of them.
    virtual QFuture<QSet<QUuid>> editedByHand(QSet<QUuid> ids) = 0;
};

} // namespace vornel

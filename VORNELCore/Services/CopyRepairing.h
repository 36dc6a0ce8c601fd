#pragma once

#include <VORNELCore/Records/WorkspaceModels.h>

#include <QFuture>

#include <exception>
#include <optional>
#include <stop_token>

namespace vornel {

/// What became of one of several skills: the skill as it is now or, where it has none, what went wrong.
struct SyncOutcome
{
    QUuid id;
    std::optional<SkillDetail> detail;
    std::exception_ptr failure;
};

/// Makes copies right where the synchronisation of one skill doesn't do.
class CopyRepairing
{
public:
    virtual ~CopyRepairing() = default;

    /// Synchronises the skills in their order and past failures; those that are in sync are only read.
    /// Progress runs from 0 to their number, and other operations may come between two skills. Once `stop` is
    /// requested, the skill under way is the last one. The outcomes are in the same order. Where the library
    /// can't be read, fails as a whole at the beginning; later, the skills that are left share the failure.
    virtual QFuture<QList<SyncOutcome>> synchronizeSkills(QList<QUuid> ids, std::stop_token stop) = 0;

    /// Moves what stands in the place of this copy into the recovery folder, as it is, and installs the
    /// canonical folder there; a link is moved, not followed. May fail with `notBootstrapped`,
    /// `skillNotFound`, `symlinkUnsupported` when the assistant's folder is a link, or a file-system error,
    /// and then leaves all where it stood.
    virtual QFuture<SkillDetail> setAside(QUuid id, TargetKind target) = 0;
};

} // namespace vornel

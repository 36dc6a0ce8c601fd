#pragma once

#include <VORNELCore/Records/WorkspaceModels.h>

#include <QFuture>

#include <exception>
#include <optional>
#include <stop_token>

namespace vornel {

/// What the synchronisation of one skill among several came to: the skill as it is now, or else the failure.
struct SyncOutcome
{
    QUuid id;
    std::optional<SkillDetail> detail;
    std::exception_ptr failure;
};

/// Repairs copies: those of several skills at once, and one that can't be read.
class CopyRepairing
{
public:
    virtual ~CopyRepairing() = default;

    /// Synchronises the skills one after another; a failure doesn't stop the others. Skills that are in sync
    /// are only read. Progress runs from 0 to the number of skills, and other operations may run between two
    /// of them. Once `stop` is requested, the skill under way is the last one. The outcomes are in the order
    /// of `ids`. If the library can't be read at the beginning, the whole operation fails; if that happens
    /// later, each skill that is left gets the failure as its outcome.
    virtual QFuture<QList<SyncOutcome>> synchronizeSkills(QList<QUuid> ids, std::stop_token stop) = 0;

    /// Moves what stands in the place of this copy into the recovery folder, as it is, and installs the
    /// canonical folder there; a link is moved, not followed. May fail with `notBootstrapped`,
    /// `skillNotFound`, `symlinkUnsupported` when the assistant's folder is a link, or a file-system error,
    /// and then leaves all where it stood.
    virtual QFuture<SkillDetail> setAside(QUuid id, TargetKind target) = 0;
};

} // namespace vornel

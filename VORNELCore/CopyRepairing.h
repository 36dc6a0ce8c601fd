#pragma once

#include "WorkspaceModels.h"

#include <QFuture>

namespace vornel {

/// Mends copies that a synchronisation can't replace.
class CopyRepairing
{
public:
    virtual ~CopyRepairing() = default;

    /// Moves what stands in the place of this copy into the recovery folder, as it is, and installs the
    /// canonical folder there; a link is moved, not followed. May fail with `notBootstrapped`,
    /// `skillNotFound`, `symlinkUnsupported` when the assistant's folder is a link, or a file-system error,
    /// and then leaves all where it stood.
    virtual QFuture<SkillDetail> setAside(QUuid id, TargetKind target) = 0;
};

} // namespace vornel

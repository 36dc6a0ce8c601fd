#pragma once

#include <VORNELCore/Records/CopyInspection.h>
#include <VORNELCore/Records/TargetOccupant.h>

#include <QByteArray>
#include <QFuture>
#include <QHash>
#include <QUuid>

#include <optional>

namespace vornel {

/// Looks at copies and at what else stands in the targets, and changes nothing. Each operation may fail with
/// `notBootstrapped` or a file-system error, those on an active skill with `skillNotFound`.
class CopyInspecting
{
public:
    virtual ~CopyInspecting() = default;

    /// How each copy of a skill stands against the canonical folder, in the order of `TargetKind`. A copy
    /// that can't be read is `failed`, with the reason, and doesn't hide the other.
    virtual QFuture<QList<CopyInspection>> inspectCopies(QUuid id) = 0;

    /// By skill, the copies that the last overview found failed, with the reason, or drifted, with the cause.
    /// Files are compared for those alone that were edited: `differences` is empty for all others.
    virtual QFuture<QHash<QUuid, QList<CopyInspection>>> wrongCopies() = 0;

    /// The bytes of a file in the skill's canonical folder or, with `copy`, in that assistant's copy; nothing
    /// where no file is. Fails with `invalidPath` for a path out of the folder, and with `symlinkUnsupported`
    /// for a link on the way.
    virtual QFuture<std::optional<QByteArray>> readFile(QUuid id, std::optional<TargetKind> copy,
                                                        QString relativePath) = 0;

    /// What a creation, a restoration or an import would replace at these places, or can't replace, in their
    /// order. Copies of active skills don't count, nor does a folder that equals the skill restored there,
    /// since the restoration leaves it as it is. A target that is a link has no occupants.
    virtual QFuture<QList<TargetOccupant>> occupants(QList<TargetPlace> places) = 0;
};

} // namespace vornel

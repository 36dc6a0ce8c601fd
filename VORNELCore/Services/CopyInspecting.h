#pragma once

#include <VORNELCore/Records/CopyInspection.h>
#include <VORNELCore/Records/TargetOccupant.h>

#include <QByteArray>
#include <QFuture>
#include <QHash>
#include <QUuid>

#include <optional>

namespace vornel {

/// Looks into the assistants' folders, and changes nothing. Each operation may fail with `notBootstrapped` or
/// a file-system error, those on an active skill with `skillNotFound`.
class CopyInspecting
{
public:
    virtual ~CopyInspecting() = default;

    /// How the copy of each assistant stands against the canonical folder, in the order of `TargetKind`. A
    /// copy that can't be looked at is `failed` with the reason, and doesn't hide the other.
    virtual QFuture<QList<CopyInspection>> inspectCopies(QUuid id) = 0;

    /// The copies that are `failed`, with the reason, and those by which skills are `drifted`, with what has
    /// made them differ: by skill, as the last overview found them. Of these, nothing is compared.
    virtual QFuture<QHash<QUuid, QList<CopyInspection>>> wrongCopies() = 0;

    /// The bytes of a file in the skill's canonical folder or, with `copy`, in that assistant's copy; nothing
    /// where no file is. Fails with `invalidPath` for a path out of the folder, and with `symlinkUnsupported`
    /// for a link on the way.
    virtual QFuture<std::optional<QByteArray>> readFile(QUuid id, std::optional<TargetKind> copy,
                                                        QString relativePath) = 0;

    /// What stands at these places, in the same order, and isn't a copy of an active skill: what a creation,
    /// a restoration or an import would replace, or can't. What a restoration would leave as it is doesn't
    /// count, for it equals the trashed skill. In a target that is a link, nothing is looked at.
    virtual QFuture<QList<TargetOccupant>> occupants(QList<TargetPlace> places) = 0;
};

} // namespace vornel

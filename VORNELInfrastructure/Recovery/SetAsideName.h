#pragma once

#include <VORNELCore/Records/Enumerations.h>

#include <optional>

namespace vornel {

/// What a name in the recovery folder tells of what has it.
struct SetAsideName
{
    QString slug = {};                        ///< empty where the name tells no valid one
    std::optional<VersionOrigin> origin = {}; ///< absent where it tells none

    static SetAsideName of(const QString &name);
};

/// The name there of an entry of a skill's history that holds what was replaced, by the entry's own name: the
/// same one whenever it is asked for. Without a valid slug, that name stays.
QString nameOfReplaced(const QString &entry, const QString &slug);

} // namespace vornel

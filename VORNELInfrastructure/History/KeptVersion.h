#pragma once

#include <VORNELCore/Records/Enumerations.h>

#include <QDateTime>

#include <optional>
#include <string>

namespace vornel {

/// A version in a skill's history, as far as the name of its folder tells.
struct KeptVersion
{
    std::string entry; ///< that name
    HistoryKind kind = HistoryKind::revision;
    VersionOrigin origin = VersionOrigin::library;
    qint64 revision = 0; ///< that of the skill when it was kept; 0 where an older version noted none
    std::optional<QDateTime> replacedAt = {}; ///< when it was (UTC), where that was noted

    /// Reads the name of an entry; nothing for any other name.
    static std::optional<KeptVersion> named(const std::string &name);
};

/// A fresh name for a revision.
QString revisionEntry(qint64 revision);

/// A fresh name for what is replaced now, while the skill is at `revision`.
QString replacedEntry(VersionOrigin origin, qint64 revision);

/// How the names of the copies begin that have become a part of what has the digest `result`.
QString mergedPrefix(VersionOrigin origin, const std::string &result);

/// A fresh name of that kind.
QString mergedEntry(VersionOrigin origin, const std::string &result, qint64 revision);

/// The origin of what stands in a target.
VersionOrigin originOfCopy(TargetKind target);

} // namespace vornel

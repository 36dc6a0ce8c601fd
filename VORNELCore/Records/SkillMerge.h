#pragma once

#include "WorkspaceModels.h"

#include <optional>
#include <variant>

namespace vornel {

/// A file that both copies of a skill have changed, and whose changes can't be joined. Where a copy has a
/// folder in the place of a file, it is about the folder and all that it holds.
struct MergeConflict
{
    QString relativePath;              ///< below the skill's folder
    QString basis;                     ///< stands for what the library and both copies hold there
    std::optional<QString> markedText; ///< where all are texts: joined as far as it goes, with conflict marks

    bool operator==(const MergeConflict &) const = default;
};

/// How the user has settled a conflict: the version of one copy stands, or this text. It counts as long as
/// the library and both copies hold what they held then.
struct MergeSettlement
{
    QString relativePath;
    QString basis; ///< that of the conflict
    std::variant<TargetKind, QString> content;

    bool operator==(const MergeSettlement &) const = default;
};

/// What a merge came to.
struct MergeResult
{
    QList<MergeConflict> conflicts;   ///< those that aren't settled, by path; with any, nothing was changed
    std::optional<SkillDetail> skill; ///< the skill as it is now, unless there are conflicts
};

} // namespace vornel

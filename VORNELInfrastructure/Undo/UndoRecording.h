#pragma once

#include <VORNELCore/Records/SkillProperties.h>

#include <QString>
#include <QUuid>

#include <filesystem>
#include <map>
#include <optional>
#include <string>

namespace vornel {

/// Where copies stand that were moved out of their targets.
using TakenOut = std::map<TargetKind, std::filesystem::path>;

/// What an operation has changed of one skill, and how that stood before. Contents are told by their digests,
/// as an operation knows them anyway: they are looked for in the history when the change is taken back.
struct SkillChange
{
    /// A copy that was installed.
    struct Copy
    {
        std::optional<std::string> former; ///< nothing where there was none
        std::string installed;
    };

    enum class Move { none, toTrash, fromTrash };

    qint64 revision = 0;                            ///< the one that was made; 0 without one
    std::optional<SkillProperties> properties = {}; ///< the former ones; nothing where they are the same
    std::string formerContent = {};    ///< of the skill's folder; empty where that wasn't replaced
    std::string installedContent = {}; ///< what the targets were to hold; empty where that was no matter
    std::map<TargetKind, Copy> copies = {};
    Move move = Move::none;
    TakenOut takenOut = {};

    /// Whether the folder has got another content, and one that is known.
    bool hasNewContent() const
    {
        return !formerContent.empty() && !installedContent.empty() && formerContent != installedContent;
    }

    /// Whether there is nothing to take back. A copy that was merely missing need not be so again.
    bool isIdle() const;
};

/// What an operation has changed, by skill.
using UndoRecording = std::map<QUuid, SkillChange>;

/// Leaves of `changes` only what is still to be taken back once `done` has been changed to that end.
void removeDone(UndoRecording &changes, const UndoRecording &done);

/// Leaves only what can be taken back.
void removeIdle(UndoRecording &changes);

} // namespace vornel

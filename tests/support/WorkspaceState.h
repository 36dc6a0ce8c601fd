#pragma once

#include "Scratch.h"

namespace vornel {

/// The trees of the folders in a folder, by name. Hidden ones are passed over.
std::map<std::string, Tree> treesIn(const std::filesystem::path &folder);

/// A skill as it stands on the disk.
struct SkillOnDisk
{
    bool isTrashed = false;
    SkillManifest manifest;
    Tree files; ///< the visible files, the manifest included

    bool operator==(const SkillOnDisk &) const = default;
};

/// What a workspace and the assistants' folders hold, read without the service.
struct WorkspaceState
{
    std::map<std::string, SkillOnDisk> skills;                  ///< by slug
    std::map<std::string, std::map<std::string, Tree>> history; ///< by identifier, then by entry
    std::map<std::string, Tree> recovery;
    std::map<std::string, Tree> claude;
    std::map<std::string, Tree> codex;
    std::string catalog;
    std::string ignored; ///< the names of new skills that are ignored; empty without any

    /// The skill of this slug; null where there is none.
    const SkillOnDisk *find(const std::string &slug) const;

    /// The skill of this identifier's text; null where there is none.
    const SkillOnDisk *findByID(const std::string &id) const;
};

/// Reads the roots below `folder`: "workspace", "claude" and "codex", of which any may be missing. A skill
/// that stands twice, in the library and in the trash, is a failure of the test.
WorkspaceState stateBelow(const std::filesystem::path &folder);

/// Reads the skill that stands in a folder.
SkillOnDisk skillIn(const std::filesystem::path &folder);

} // namespace vornel

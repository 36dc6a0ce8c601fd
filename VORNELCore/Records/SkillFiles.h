#pragma once

#include <cstdint>

/// The files that every skill folder holds, and how large and how deep in it a file may be.
namespace vornel::SkillFiles {

inline constexpr const char *text = "SKILL.md";
inline constexpr const char *manifest = "vornel.json";

/// The largest file that is read or copied: 25 MiB.
inline constexpr std::int64_t sizeLimit = 26'214'400;

/// The deepest folder that is read, the skill's own being the first: every open one costs a descriptor, of
/// which a process has about a thousand.
inline constexpr int deepestLevel = 100;

} // namespace vornel::SkillFiles

#pragma once

#include <cstdint>

/// The files that every skill folder holds, and the limit on the size of any file.
namespace vornel::SkillFiles {

inline constexpr const char *text = "SKILL.md";
inline constexpr const char *manifest = "vornel.json";

/// The largest file that is read or copied: 25 MiB.
inline constexpr std::int64_t sizeLimit = 26'214'400;

} // namespace vornel::SkillFiles

#pragma once

#include <string_view>

namespace vornel {

/// Whether the file name `a` comes before `b` as a file browser orders them: ASCII letters without regard to
/// case, digits by value. Names that are equal so are ordered by their bytes.
bool naturallyBefore(std::string_view a, std::string_view b);

} // namespace vornel

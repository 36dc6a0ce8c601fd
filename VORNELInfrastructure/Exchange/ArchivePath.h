#pragma once

#include <string>

namespace vornel {

/// The path of an archive's entry below the folder that the archive is unpacked into, without what says
/// nothing ("./"); empty for that folder itself. Throws `integrityFailure` for a name that would lead
/// elsewhere, on this system or another, is nested too deep or isn't UTF-8.
std::string archivePath(const std::string &name);

} // namespace vornel

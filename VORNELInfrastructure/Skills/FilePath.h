#pragma once

#include <VORNELInfrastructure/Tree/FileTreeSnapshot.h>

namespace vornel {

/// The path of a file or folder that a user may give to a skill, in UTF-8. Throws `invalidPath` for one out
/// of the skill's folder, and `integrityFailure` for hidden names, those of VORNEL's own files, empty ones
/// and ones that no volume takes.
std::string filePath(const QString &typed);

/// Throws `integrityFailure` for what is nested too deep.
void requireReachable(const FileTreeSnapshot::Entry &entry);

} // namespace vornel

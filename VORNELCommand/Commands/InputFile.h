#pragma once

#include <QString>

namespace vornel {

/// The text of a file, byte for byte; "-" is standard input. Throws `std::filesystem::filesystem_error` when
/// it can't be read, is larger than a skill's file may be, or isn't UTF-8, and `CommandFailure`
/// "closedInput".
QString textOfFile(const QString &name);

} // namespace vornel

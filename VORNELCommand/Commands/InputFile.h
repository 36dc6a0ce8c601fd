#pragma once

#include <QByteArrayView>
#include <QString>

#include <functional>

namespace vornel {

/// Hands the bytes of a file to `sink`; "-" is standard input. Throws `std::filesystem::filesystem_error`
/// when it can't be read, and `CommandFailure` "closedInput".
void readInput(const QString &name, const std::function<void(QByteArrayView)> &sink);

/// The text of a file, byte for byte; "-" is standard input. Throws `std::filesystem::filesystem_error` when
/// it can't be read, is larger than a skill's file may be, or isn't UTF-8, and `CommandFailure`
/// "closedInput".
QString textOfFile(const QString &name);

} // namespace vornel

#pragma once

#include <QByteArrayView>
#include <QString>

#include <functional>

namespace vornel {

/// Hands the bytes of a file to `sink`; "-" is standard input. Throws `std::filesystem::filesystem_error`
/// when it can't be read, and `CommandFailure` "closedInput".
void readInput(const QString &name, const std::function<void(QByteArrayView)> &sink);

/// The same bytes at once; a file that is larger than a skill's may be is a `filesystem_error`, too.
QByteArray bytesOfFile(const QString &name);

/// The same as a text, byte for byte; one that isn't UTF-8 is a `filesystem_error`, too.
QString textOfFile(const QString &name);

} // namespace vornel

#pragma once

#include <QJsonObject>

#include <exception>

namespace vornel {

/// A failure as JSON: "error" is the name of its case, "message" what the user reads, "folder" the place to
/// look at, if there is one. A `CommandFailure` adds its details.
QJsonObject failureObject(const std::exception &error);
QJsonObject failureObject(const std::exception_ptr &error);

/// Writes the JSON form of a failure to standard error, on one line.
void printFailure(const QJsonObject &failure);

} // namespace vornel

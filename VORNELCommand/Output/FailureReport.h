#pragma once

#include <QJsonObject>

#include <exception>

namespace vornel {

/// A failure as JSON: "error" is the name of its case, "message" what the user reads, "folder" the place to
/// look at, if there is one; beside what the failure itself adds.
QJsonObject failureObject(const std::exception &error);
QJsonObject failureObject(const std::exception_ptr &error);

/// Writes it to standard error, on one line.
void printFailure(const QJsonObject &failure);

} // namespace vornel

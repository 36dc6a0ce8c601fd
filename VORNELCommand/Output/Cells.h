#pragma once

#include "Terminal.h"

#include <VORNELCore/Records/CopyInspection.h>

#include <QDateTime>

/// What several reports show in the same way.
namespace vornel::Report {

/// A path, marked with how it differs.
Terminal::Cell differenceCell(const FileDifference &difference);

/// "2026-11-22 14:32", where the user is.
QString localDate(const QDateTime &date);

/// A table below its title and the number of its rows; nothing without rows.
QString section(const QString &title, const QList<QList<Terminal::Cell>> &rows);

} // namespace vornel::Report

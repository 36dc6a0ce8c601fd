#pragma once

#include <VORNELCore/Records/HistoryRecords.h>

namespace vornel::Report {

/// One row for each version: its date, what it is, and its name.
QString history(const QList<HistoryEntry> &entries);

/// The paths in which two versions differ.
QString versions(const HistoryComparison &comparison);

/// How many versions have gone, or would go, and how much room that makes.
QString pruned(const HistoryExtent &extent, bool isRehearsal);

} // namespace vornel::Report

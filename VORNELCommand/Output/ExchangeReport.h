#pragma once

#include <VORNELCore/Records/ExchangeRecords.h>

namespace vornel::Report {

/// What an archive holds, how large it is and where it stands.
QString exported(const SkillExport &written);

/// One row for each skill: what adding it does.
QString additions(const QList<SkillAddition> &additions);

} // namespace vornel::Report

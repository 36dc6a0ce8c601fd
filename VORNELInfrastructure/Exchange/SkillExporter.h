#pragma once

#include <VORNELCore/Records/ExchangeRecords.h>
#include <VORNELInfrastructure/Workspace/Workspace.h>

namespace vornel {

/// Does and throws what `SkillExchange::exportSkills` says.
SkillExport exportSkills(const Workspace &workspace, const QList<QUuid> &ids,
                         const std::filesystem::path &file);

} // namespace vornel

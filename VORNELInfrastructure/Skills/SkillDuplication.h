#pragma once

#include <VORNELCore/Records/WorkspaceModels.h>
#include <VORNELInfrastructure/Workspace/Workspace.h>

#include <optional>

namespace vornel {

/// Does and throws what `FileEditing::duplicateSkill` says.
SkillDetail duplicateSkill(const Workspace &workspace, const QUuid &id, const QString &slug,
                           const std::optional<QString> &displayName);

} // namespace vornel

#pragma once

#include <VORNELCore/Records/TargetOccupant.h>
#include <VORNELInfrastructure/Workspace/Workspace.h>

namespace vornel {

/// Why something of this kind is no skill's folder; empty for a folder, which may be one.
QString refusalOfKind(FileKind kind);

/// What stands at these places of the targets, in their order, and is neither a copy of an active skill nor
/// equal to the skill that is restored there. It is walked over as an install would.
QList<TargetOccupant> occupantsOf(const Workspace &workspace, const QList<TargetPlace> &places);

} // namespace vornel

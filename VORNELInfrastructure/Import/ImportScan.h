#pragma once

#include <VORNELCore/Records/ImportModels.h>
#include <VORNELInfrastructure/Workspace/Workspace.h>

namespace vornel {

/// Classifies the skills of both assistants' folders that the library lacks. What can't be imported is listed
/// as blocked; the scan fails only when a root is a link or can't be listed.
ImportPlan scanImports(const Workspace &workspace);

} // namespace vornel

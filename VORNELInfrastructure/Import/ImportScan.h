#pragma once

#include <VORNELCore/Records/ImportModels.h>
#include <VORNELInfrastructure/Workspace/Workspace.h>

namespace vornel {

/// Classifies what both assistants' folders hold and the library lacks. What can't be imported is listed as
/// blocked; only a root that is a link, or can't be listed, makes the scan fail.
ImportPlan scanImports(const Workspace &workspace);

} // namespace vornel

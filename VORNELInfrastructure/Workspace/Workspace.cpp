#include "Workspace.h"

#include <VORNELCore/Errors/VORNELWorkspaceError.h>
#include <VORNELCore/Records/SerializedForms.h>

namespace vornel {

void refuseLinkedRoot(const FileSystem &files, const std::filesystem::path &root)
{
    if (files.kindAt(root) == FileKind::SymbolicLink)
        throw VORNELWorkspaceError::symlinkUnsupported(pathText(root));
}

} // namespace vornel

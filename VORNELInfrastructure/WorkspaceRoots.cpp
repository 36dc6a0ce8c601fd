#include "WorkspaceRoots.h"

#include <VORNELCore/SerializedForms.h>

namespace vornel {

namespace fs = std::filesystem;

WorkspaceRoots WorkspaceRoots::fromEnvironment(const QProcessEnvironment &environment, const fs::path &home,
                                               const WorkspaceLocating &locator)
{
    const auto override = [&environment](const char *variable, const fs::path &otherwise) {
        const QString value = environment.value(QLatin1String(variable));
        const bool accepted = value.startsWith(u'/') && !value.contains(QChar::Null);
        return accepted ? standardizedPath(pathFromText(value)) : otherwise;
    };
    return {
        override("VORNEL_WORKSPACE_PATH", locator.defaultWorkspaceURL()),
        override("VORNEL_CLAUDE_SKILLS_PATH", home / ".claude" / "skills"),
        override("VORNEL_CODEX_SKILLS_PATH", home / ".codex" / "skills"),
    };
}

} // namespace vornel

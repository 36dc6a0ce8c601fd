#include "WorkspaceRoots.h"

#include <VORNELCore/Records/SerializedForms.h>

#include <pwd.h>
#include <unistd.h>

#include <string_view>
#include <system_error>

namespace vornel {

namespace fs = std::filesystem;

WorkspaceRoots WorkspaceRoots::fromEnvironment(const Environment &environment, const fs::path &home,
                                               const WorkspaceLocating &locator)
{
    const auto override = [&environment](const char *variable, const fs::path &otherwise) {
        const char *value = environment(variable);
        const bool isAbsolute = value != nullptr && std::string_view(value).starts_with('/');
        return isAbsolute ? standardizedPath(value) : otherwise;
    };
    return {
        override("VORNEL_WORKSPACE_PATH", locator.defaultWorkspaceURL()),
        override("VORNEL_CLAUDE_SKILLS_PATH", home / ".claude" / "skills"),
        override("VORNEL_CODEX_SKILLS_PATH", home / ".codex" / "skills"),
    };
}

fs::path homeFolder(const Environment &environment)
{
    const char *home = environment("HOME");
    if (home != nullptr && *home == '/')
        return home;
    const passwd *account = ::getpwuid(::getuid());
    if (account == nullptr)
        throw std::system_error(std::make_error_code(std::errc::no_such_file_or_directory));
    return account->pw_dir;
}

} // namespace vornel

#include "Configuration.h"

#include "FileSystem.h"

#include <VORNELCore/SerializedForms.h>
#include <VORNELCore/VORNELWorkspaceError.h>

namespace vornel {

namespace fs = std::filesystem;

namespace {

bool overlap(const fs::path &a, const fs::path &b)
{
    const fs::path resolvedA = fs::weakly_canonical(a);
    const fs::path resolvedB = fs::weakly_canonical(b);
    return isInside(resolvedA, resolvedB) || isInside(resolvedB, resolvedA);
}

} // namespace

Configuration Configuration::forRoots(const fs::path &workspace, const fs::path &claude,
                                      const fs::path &codex)
{
    Configuration config{standardizedPath(workspace), standardizedPath(claude), standardizedPath(codex)};
    if (overlap(config.workspace, config.claude) || overlap(config.workspace, config.codex) ||
        overlap(config.claude, config.codex))
        throw VORNELWorkspaceError::invalidPath(PathViolation::overlappingRoots);
    return config;
}

fs::path Configuration::canonical(const QString &slug) const
{
    return skills() / pathFromText(slug);
}

fs::path Configuration::trashed(const QUuid &id) const
{
    return trash() / pathFromText(uuidText(id));
}

fs::path Configuration::historyOf(const QUuid &id) const
{
    return history() / pathFromText(uuidText(id));
}

const fs::path &Configuration::target(TargetKind kind) const
{
    return kind == TargetKind::claude ? claude : codex;
}

} // namespace vornel

#include "Configuration.h"

#include <VORNELCore/Errors/VORNELWorkspaceError.h>
#include <VORNELCore/Records/SerializedForms.h>

namespace vornel {

namespace fs = std::filesystem;

namespace {

bool overlap(const fs::path &a, const fs::path &b)
{
    return isInside(a, b) || isInside(b, a);
}

} // namespace

Configuration Configuration::forRoots(const FileSystem &files, const fs::path &workspace,
                                      const fs::path &claude, const fs::path &codex)
{
    Configuration config{standardizedPath(workspace), standardizedPath(claude), standardizedPath(codex)};
    const fs::path resolvedWorkspace = files.resolved(config.workspace);
    const fs::path resolvedClaude = files.resolved(config.claude);
    const fs::path resolvedCodex = files.resolved(config.codex);
    if (overlap(resolvedWorkspace, resolvedClaude) || overlap(resolvedWorkspace, resolvedCodex) ||
        overlap(resolvedClaude, resolvedCodex))
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

#pragma once

#include <VORNELCore/Records/Enumerations.h>
#include <VORNELInfrastructure/Disk/FileSystem.h>

#include <QUuid>

#include <filesystem>
#include <vector>

namespace vornel {

/// The roots of an open workspace, and the layout below them.
struct Configuration
{
    std::filesystem::path workspace;
    std::filesystem::path claude;
    std::filesystem::path codex;

    /// Standardises the three paths. Throws `invalidPath(overlappingRoots)` when one root lies in another,
    /// with their links resolved.
    static Configuration forRoots(const FileSystem &files, const std::filesystem::path &workspace,
                                  const std::filesystem::path &claude, const std::filesystem::path &codex);

    std::filesystem::path skills() const { return workspace / "skills"; }
    std::filesystem::path bookkeeping() const { return workspace / ".vornel"; }
    std::filesystem::path history() const { return bookkeeping() / "history"; }
    std::filesystem::path trash() const { return bookkeeping() / "trash"; }
    std::filesystem::path staging() const { return bookkeeping() / "staging"; }
    std::filesystem::path recovery() const { return bookkeeping() / "recovery"; }
    std::filesystem::path events() const { return bookkeeping() / "events"; }
    std::filesystem::path metadata() const { return bookkeeping() / "workspace.json"; }
    std::filesystem::path ignoredSkills() const { return bookkeeping() / "ignored.json"; }
    std::filesystem::path categories() const { return bookkeeping() / "categories.json"; }

    /// The folder of an active skill.
    std::filesystem::path canonical(const QString &slug) const;

    /// The folder of a skill in the trash.
    std::filesystem::path trashed(const QUuid &id) const;

    std::filesystem::path historyOf(const QUuid &id) const;

    /// An assistant's skills folder.
    const std::filesystem::path &target(TargetKind kind) const;

    std::vector<std::filesystem::path> roots() const { return {workspace, claude, codex}; }
};

} // namespace vornel

#pragma once

#include <VORNELCore/Records/CopyInspection.h>
#include <VORNELCore/Records/WorkspaceModels.h>
#include <VORNELInfrastructure/Tree/FileTreeSnapshot.h>
#include <VORNELInfrastructure/Workspace/Workspace.h>

#include <QByteArray>
#include <QHash>

#include <optional>

namespace vornel {

class CopyDrift;
struct SkillRecord;

/// Compares the copies of active skills with their canonical folders, path by path. An unknown skill is
/// refused with `skillNotFound`.
class CopyInspector
{
public:
    explicit CopyInspector(const Workspace &workspace) : m_workspace(workspace) {}

    /// How each copy stands, in the order of the targets. A copy that can't be read is `failed`, with the
    /// reason, and doesn't hide the other.
    QList<CopyInspection> inspect(const QUuid &id) const;

    /// By skill, the copies that failed or differed when the last overview was made, or in a synchronisation
    /// since.
    QHash<QUuid, QList<CopyInspection>> wrongCopies() const;

    /// The bytes of a file of the canonical folder or of the copy in `target`; nothing where no file is.
    std::optional<QByteArray> readFile(const QUuid &id, std::optional<TargetKind> target,
                                       const QString &relativePath) const;

private:
    FileTreeSnapshot contentOf(const std::filesystem::path &folder) const;
    CopyInspection inspect(const SkillManifest &manifest, const FileTreeSnapshot &canonical,
                           TargetKind target, CopyDrift &drift) const;
    QList<CopyInspection> wrongCopies(const SkillRecord &skill) const;

    const Workspace &m_workspace;
};

} // namespace vornel

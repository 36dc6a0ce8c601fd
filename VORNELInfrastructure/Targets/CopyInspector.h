#pragma once

#include <VORNELCore/Records/CopyInspection.h>
#include <VORNELCore/Records/TargetOccupant.h>
#include <VORNELCore/Records/WorkspaceModels.h>
#include <VORNELInfrastructure/Tree/FileTreeSnapshot.h>
#include <VORNELInfrastructure/Workspace/Workspace.h>

#include <QByteArray>
#include <QHash>

#include <optional>

namespace vornel {

class DriftCauses;

/// Shows what the copies of an active skill hold, beside its canonical folder, and what else stands in the
/// targets. Throws `skillNotFound`.
class CopyInspector
{
public:
    explicit CopyInspector(const Workspace &workspace) : m_workspace(workspace) {}

    /// How each copy stands, in the order of the targets. What goes wrong with a copy is told in its place.
    QList<CopyInspection> inspect(const QUuid &id) const;

    /// The copies known to be `failed`, or that make their skill `drifted`, of active skills.
    QHash<QUuid, QList<CopyInspection>> wrongCopies() const;

    /// The bytes of a file of the canonical folder or of the copy in `target`; nothing where no file is.
    std::optional<QByteArray> readFile(const QUuid &id, std::optional<TargetKind> target,
                                       const QString &relativePath) const;

    /// What stands at these places and isn't a copy of an active skill, nor of one that is restored there.
    QList<TargetOccupant> occupants(const QList<TargetPlace> &places) const;

private:
    std::optional<TargetOccupant> occupant(const TargetPlace &place) const;
    FileTreeSnapshot contentOf(const std::filesystem::path &folder) const;
    bool isCopyOfRestored(const TargetPlace &place, const FileTreeSnapshot &content) const;
    CopyInspection inspect(const SkillManifest &manifest, const FileTreeSnapshot &canonical,
                           TargetKind target, DriftCauses &causes) const;
    QList<CopyInspection> wrongCopies(const SkillManifest &manifest) const;

    const Workspace &m_workspace;
};

} // namespace vornel

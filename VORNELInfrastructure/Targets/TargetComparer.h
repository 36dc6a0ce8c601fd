#pragma once

#include <VORNELCore/Records/TargetComparison.h>
#include <VORNELInfrastructure/Workspace/Workspace.h>

#include <QByteArray>

namespace vornel {

/// Looks at the folders that both targets hold under one slug. An error knows the folder that it is about.
/// What is no slug is refused with `invalidPath`, a target that is a link with `symlinkUnsupported`.
class TargetComparer
{
public:
    TargetComparer(const Workspace &workspace, const QString &slug);

    /// In what they differ.
    TargetComparison compare() const;

    /// The bytes of a file of one of them; nothing where no file is.
    std::optional<QByteArray> readFile(TargetKind target, const QString &relativePath) const;

private:
    std::filesystem::path folderIn(TargetKind target) const;

    const Workspace &m_workspace;
    QString m_slug;
};

} // namespace vornel

#pragma once

#include <VORNELInfrastructure/Workspace/Workspace.h>

#include <QObject>
#include <QStringList>

namespace vornel {

/// The names of folders in the targets that the user wants to hear nothing of.
struct IgnoredNames
{
    Q_GADGET
    Q_PROPERTY(QStringList claude MEMBER claude)
    Q_PROPERTY(QStringList codex MEMBER codex)

public:
    QStringList claude;
    QStringList codex;

    bool operator==(const IgnoredNames &) const = default;

    QStringList &of(TargetKind target) { return target == TargetKind::claude ? claude : codex; }
};

/// Where the workspace keeps them.
class IgnoredSkills
{
public:
    explicit IgnoredSkills(const Workspace &workspace) : m_workspace(workspace) {}

    /// None where the file is missing or spoiled: then the user is told once more. May fail with a
    /// file-system error.
    IgnoredNames names() const;

    /// Replaces the file in one step.
    void keep(const IgnoredNames &names) const;

private:
    const Workspace &m_workspace;
};

} // namespace vornel

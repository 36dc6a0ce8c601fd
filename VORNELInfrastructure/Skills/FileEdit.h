#pragma once

#include "SkillAuthoring.h"

#include <VORNELCore/Records/PathChange.h>
#include <VORNELInfrastructure/Tree/ComposedTree.h>

namespace vornel {

/// Changes the files of a skill.
class FileEdit
{
public:
    explicit FileEdit(const Workspace &workspace) : m_workspace(workspace), m_authoring(workspace) {}

    /// Does and throws what `FileEditing::changeFiles` says.
    SkillDetail run(const QUuid &id, const QList<PathChange> &changes, qint64 expectedRevision) const;

    /// Returns and throws what `FileEditing::emptyFolders` says.
    QStringList emptyFolders(const QUuid &id) const;

    /// Returns and throws what `FileEditing::openFile` says.
    std::shared_ptr<QFile> open(const QUuid &id, const QString &relativePath) const;

private:
    const Workspace &m_workspace;
    SkillAuthoring m_authoring;
};

} // namespace vornel

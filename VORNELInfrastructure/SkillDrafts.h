#pragma once

#include "Workspace.h"

#include <VORNELCore/DraftKeeping.h>

namespace vornel {

/// The unsaved texts in the workspace, one file for each skill. Their folder is created with the first one.
class SkillDrafts
{
public:
    explicit SkillDrafts(const Workspace &workspace) : m_files(workspace.files), m_config(workspace.config) {}

    /// Replaces the skill's draft in one step. Throws `file_too_large` when it couldn't be read again.
    void keep(const QUuid &id, const KeptDraft &draft) const;

    /// The skill's draft; nothing without one. What can't be read as a draft is renamed, so that a later
    /// draft doesn't replace it.
    std::optional<KeptDraft> read(const QUuid &id) const;

    bool exists(const QUuid &id) const;

    /// Deletes the skill's draft, if there is one.
    void discard(const QUuid &id) const;

private:
    void setAside(const QUuid &id) const;

    FileSystem &m_files;
    const Configuration &m_config;
};

} // namespace vornel

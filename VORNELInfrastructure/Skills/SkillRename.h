#pragma once

#include "RenameNotes.h"
#include "SkillRecords.h"

#include <optional>

namespace vornel {

/// Gives a skill another slug: its folder and its copies get the other name. A note is kept meanwhile, by
/// which the next operation of any program finishes what was cut short, or takes it back.
class SkillRename
{
public:
    explicit SkillRename(const Workspace &workspace) : m_workspace(workspace), m_notes(workspace) {}

    /// Throws `duplicateSlug` for a slug that another skill has, here or in the trash, `integrityFailure`
    /// where something stands under it in an assistant's folder.
    void check(const SkillManifest &skill, const QString &slug) const;

    /// Renames the folder of a skill that had the slug `from`, and writes its manifest, which has the new
    /// one. What fails leaves both as they were.
    void renameFolder(const SkillManifest &skill, const QString &from) const;

    /// Renames the copies that are there. A failed target doesn't stop the other: failures are remembered,
    /// then thrown as `partialSync`; what is left is tried again by the next operation.
    void renameCopies(const SkillManifest &skill, const QString &from) const;

    /// Whether a rename was cut short.
    bool isUnfinished() const { return !m_notes.all().empty(); }

    /// Puts that right: the copies follow a folder that has its new manifest, another folder goes back.
    void finish() const;

private:
    void finish(const RenameNotes::Note &note) const;

    /// The folder under its new slug, if it is there.
    std::optional<std::filesystem::path> renamedFolder(const RenameNotes::Note &note) const;

    const Workspace &m_workspace;
    RenameNotes m_notes;
};

} // namespace vornel

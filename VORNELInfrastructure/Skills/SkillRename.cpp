#include "SkillRename.h"

#include "SkillFolderStore.h"

#include <VORNELCore/Errors/VORNELWorkspaceError.h>
#include <VORNELCore/Errors/WorkspaceValidation.h>
#include <VORNELCore/Records/ImportModels.h>
#include <VORNELCore/Records/SerializedForms.h>
#include <VORNELInfrastructure/Disk/BestEffort.h>
#include <VORNELInfrastructure/Disk/TreeOperations.h>
#include <VORNELInfrastructure/Targets/TargetSynchronizer.h>

using namespace Qt::StringLiterals;

namespace vornel {

namespace fs = std::filesystem;

namespace {

bool isValid(const QString &slug)
{
    return !failureOf([&] { WorkspaceValidation::validateSlug(slug); });
}

} // namespace

void SkillRename::check(const SkillManifest &skill, const QString &slug) const
{
    QList<SkillRecord> others = activeManifests(m_workspace);
    others.removeIf([&](const SkillRecord &record) { return record.manifest.id == skill.id; });
    ensureUnique(slug, others);
    ensureUnique(slug, trashedManifests(m_workspace));
    for (const TargetKind kind : allCases<TargetKind>()) {
        if (m_workspace.files.kindAt(m_workspace.config.target(kind) / pathFromText(slug)))
            throw VORNELWorkspaceError::integrityFailure(
                u"Le dossier de %1 a déjà quelque chose du nom de «\u00A0%2\u00A0»."_s.arg(
                    assistantName(kind), slug));
    }
}

void SkillRename::renameFolder(const SkillManifest &skill, const QString &from) const
{
    const RenameNotes::Note note{skill.id, {from, skill.slug}};
    m_notes.add(note);
    const fs::path folder = m_workspace.config.canonical(skill.slug);
    try {
        moveTree(m_workspace.files, m_workspace.config.canonical(from), folder);
        SkillFolderStore(m_workspace).writeManifest(skill, folder, Durability::Now);
    } catch (...) {
        bestEffort([&] { finish(note); });
        throw;
    }
}

void SkillRename::renameCopies(const SkillManifest &skill, const QString &from) const
{
    TargetSynchronizer(m_workspace).renameCopies(skill, from);
    m_notes.remove(skill.id);
}

void SkillRename::finish() const
{
    for (const RenameNotes::Note &note : m_notes.all())
        bestEffort([&] { finish(note); });
}

void SkillRename::finish(const RenameNotes::Note &note) const
{
    if (const auto folder = renamedFolder(note)) {
        const SkillManifest manifest = SkillFolderStore(m_workspace).readManifest(*folder);
        if (manifest.id == note.id && manifest.slug == note.event.to)
            return renameCopies(manifest, note.event.from);
        if (manifest.id == note.id)
            moveTree(m_workspace.files, *folder, m_workspace.config.canonical(note.event.from));
    }
    m_notes.remove(note.id);
}

std::optional<fs::path> SkillRename::renamedFolder(const RenameNotes::Note &note) const
{
    if (!isValid(note.event.from) || !isValid(note.event.to))
        return std::nullopt;
    const fs::path folder = m_workspace.config.canonical(note.event.to);
    return m_workspace.files.kindAt(folder) ? std::optional(folder) : std::nullopt;
}

} // namespace vornel

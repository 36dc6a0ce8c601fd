#include "ImportScan.h"

#include <VORNELCore/Errors/VORNELWorkspaceError.h>
#include <VORNELCore/Errors/WorkspaceValidation.h>
#include <VORNELCore/Records/SerializedForms.h>
#include <VORNELCore/Records/SkillFiles.h>
#include <VORNELInfrastructure/Skills/SkillFolderStore.h>
#include <VORNELInfrastructure/Skills/SkillRecords.h>
#include <VORNELInfrastructure/Skills/SkillText.h>
#include <VORNELInfrastructure/Tree/ParallelMap.h>
#include <VORNELInfrastructure/Tree/SecureFileTree.h>

#include <algorithm>
#include <map>
#include <ranges>
#include <variant>

namespace vornel {

namespace fs = std::filesystem;

namespace {

struct SourceScan
{
    std::map<QString, ImportCandidate> candidates; ///< by slug
    QList<BlockedImport> blocked;
};

/// Looks at the entries of one assistant's folder.
class SourceScanner
{
public:
    SourceScanner(const Workspace &workspace, TargetKind source)
        : m_workspace(workspace), m_source(source), m_root(workspace.config.target(source))
    {}

    SourceScan scan(const QSet<QString> &excluding) const
    {
        if (!m_workspace.files.kindAt(m_root))
            return {};
        refuseLinkedRoot(m_workspace.files, m_root);
        std::vector<FolderEntry> entries = m_workspace.files.list(m_workspace.files.openFolder(m_root));
        std::erase_if(entries, [](const FolderEntry &entry) { return entry.name.starts_with('.'); });
        std::ranges::sort(entries, {}, &FolderEntry::name);

        SourceScan found;
        for (const Finding &finding :
             parallelMap(entries, [&](const FolderEntry &entry) { return look(entry, excluding); })) {
            if (const auto *candidate = std::get_if<ImportCandidate>(&finding))
                found.candidates[candidate->slug] = *candidate;
            else if (const auto *blocked = std::get_if<BlockedImport>(&finding))
                found.blocked.append(*blocked);
        }
        return found;
    }

private:
    /// What an entry means for the import: nothing, a skill to import, or one that can't be imported.
    using Finding = std::variant<std::monostate, ImportCandidate, BlockedImport>;

    Finding look(const FolderEntry &entry, const QSet<QString> &excluding) const
    {
        const QString name = QString::fromStdString(entry.name);
        if (entry.kind == FileKind::SymbolicLink)
            return blocked(name, "symlinkUnsupported");
        if (entry.kind != FileKind::Directory)
            return {};
        try {
            WorkspaceValidation::validateSlug(name);
        } catch (const VORNELWorkspaceError &) {
            return blocked(name, "invalidPath");
        }
        return excluding.contains(name) ? Finding() : readCandidate(name);
    }

    Finding readCandidate(const QString &slug) const
    {
        const fs::path folder = m_root / pathFromText(slug);
        try {
            const std::optional<FileKind> text = m_workspace.files.kindAt(folder / SkillFiles::text);
            if (!text || *text == FileKind::Directory)
                return blocked(slug, "missingSkillFile");
            const std::string digest =
                SecureFileTree::snapshot(m_workspace.files, folder, TreeFilter::excludingManifest).digest;
            if (!hasUsableText(folder, slug))
                return blocked(slug, "unsafeContent");
            return ImportCandidate{QUuid::createUuid(),
                                   slug,
                                   m_source,
                                   QString::fromStdString(digest),
                                   ImportClassification::singleSource,
                                   folder};
        } catch (const VORNELWorkspaceError &error) {
            return blocked(slug, reason(error));
        } catch (const fs::filesystem_error &) {
            return blocked(slug, "unreadable");
        }
    }

    /// Whether the text's name and summary are short enough for a manifest; throws when it isn't UTF-8.
    bool hasUsableText(const fs::path &folder, const QString &slug) const
    {
        const QString text = SkillFolderStore(m_workspace).readSkillMD(folder, slug);
        const SkillText::Metadata metadata = SkillText::frontmatterMetadata(text, slug);
        return metadata.name.size() <= SkillText::longestMetadata &&
               metadata.summary.size() <= SkillText::longestMetadata;
    }

    static const char *reason(const VORNELWorkspaceError &error)
    {
        if (error.as<WorkspaceErrorCase::SymlinkUnsupported>() != nullptr)
            return "symlinkUnsupported";
        if (error.as<WorkspaceErrorCase::MissingSkillFile>() != nullptr)
            return "missingSkillFile";
        return error.as<WorkspaceErrorCase::UnsafeImport>() != nullptr ? "unsafeContent" : "unreadable";
    }

    Finding blocked(const QString &name, const char *reason) const
    {
        return BlockedImport{m_source, name, QLatin1String(reason)};
    }

    const Workspace &m_workspace;
    TargetKind m_source;
    const fs::path &m_root;
};

} // namespace

ImportPlan scanImports(const Workspace &workspace)
{
    QSet<QString> known;
    for (const SkillRecord &record : activeManifests(workspace))
        known.insert(record.manifest.slug);
    const SourceScan claude = SourceScanner(workspace, TargetKind::claude).scan(known);
    SourceScan codex = SourceScanner(workspace, TargetKind::codex).scan(known);

    ImportPlan plan;
    plan.id = QUuid::createUuid();
    for (ImportCandidate candidate : claude.candidates | std::views::values) {
        const auto twin = codex.candidates.extract(candidate.slug);
        if (twin && twin.mapped().digest != candidate.digest) {
            plan.collisions.append(
                {QUuid::createUuid(), candidate.slug, candidate, twin.mapped(), std::nullopt});
            continue;
        }
        if (twin)
            candidate.classification = ImportClassification::identical;
        plan.candidates.append(candidate);
    }
    for (const ImportCandidate &candidate : codex.candidates | std::views::values)
        plan.candidates.append(candidate);
    std::ranges::sort(plan.candidates, {}, &ImportCandidate::slug);

    plan.blocked = claude.blocked + codex.blocked;
    std::ranges::stable_sort(plan.blocked, {}, &BlockedImport::name);
    return plan;
}

} // namespace vornel

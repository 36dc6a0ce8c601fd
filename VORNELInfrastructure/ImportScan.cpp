#include "ImportScan.h"

#include "SecureFileTree.h"
#include "SkillFiles.h"
#include "SkillFolderStore.h"
#include "SkillRecords.h"
#include "SkillText.h"

#include <VORNELCore/SerializedForms.h>
#include <VORNELCore/VORNELWorkspaceError.h>
#include <VORNELCore/WorkspaceValidation.h>

#include <algorithm>
#include <map>
#include <ranges>

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

    SourceScan scan(const QSet<QString> &excluding)
    {
        if (!m_workspace.files.kindAt(m_root))
            return {};
        refuseLinkedRoot(m_workspace.files, m_root);
        std::vector<FolderEntry> entries = m_workspace.files.list(m_workspace.files.openFolder(m_root));
        std::ranges::sort(entries, {}, &FolderEntry::name);
        for (const FolderEntry &entry : entries) {
            if (!entry.name.starts_with('.'))
                look(entry, excluding);
        }
        return m_found;
    }

private:
    void look(const FolderEntry &entry, const QSet<QString> &excluding)
    {
        const QString name = QString::fromStdString(entry.name);
        if (entry.kind == FileKind::SymbolicLink)
            return block(name, "symlinkUnsupported");
        if (entry.kind != FileKind::Directory)
            return;
        try {
            WorkspaceValidation::validateSlug(name);
        } catch (const VORNELWorkspaceError &) {
            return block(name, "invalidPath");
        }
        if (!excluding.contains(name))
            readCandidate(name);
    }

    void readCandidate(const QString &slug)
    {
        const fs::path folder = m_root / pathFromText(slug);
        try {
            const std::optional<FileKind> text = m_workspace.files.kindAt(folder / SkillFiles::text);
            if (!text || *text == FileKind::Directory)
                return block(slug, "missingSkillFile");
            const std::string digest =
                SecureFileTree::snapshot(m_workspace.files, folder, TreeFilter::excludingManifest).digest;
            if (!hasUsableText(folder, slug))
                return block(slug, "unsafeContent");
            m_found.candidates[slug] = {QUuid::createUuid(),
                                        slug,
                                        m_source,
                                        QString::fromStdString(digest),
                                        ImportClassification::singleSource,
                                        folder};
        } catch (const VORNELWorkspaceError &error) {
            block(slug, reason(error));
        } catch (const fs::filesystem_error &) {
            block(slug, "unreadable");
        }
    }

    /// Whether the import can take the metadata from the text; throws when that isn't UTF-8.
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

    void block(const QString &name, const char *reason)
    {
        m_found.blocked.append({m_source, name, QLatin1String(reason)});
    }

    const Workspace &m_workspace;
    TargetKind m_source;
    const fs::path &m_root;
    SourceScan m_found;
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

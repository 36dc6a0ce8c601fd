#include "ImportCommit.h"

#include "BestEffort.h"
#include "SecureFileTree.h"
#include "SkillText.h"
#include "TargetSynchronizer.h"

#include <VORNELCore/SerializedForms.h>
#include <VORNELCore/VORNELWorkspaceError.h>
#include <VORNELCore/WorkspaceValidation.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vornel {

namespace fs = std::filesystem;

namespace {

QList<ImportCandidate> workList(const ImportPlan &plan)
{
    QList<QUuid> unresolved;
    QList<ImportCandidate> work = plan.candidates;
    for (const ImportCollision &collision : plan.collisions) {
        if (!collision.choice)
            unresolved.append(collision.id);
        else
            work.append(*collision.choice == CollisionChoice::claude ? collision.claude : collision.codex);
    }
    if (!unresolved.isEmpty())
        throw VORNELWorkspaceError::unresolvedCollisions(unresolved);
    std::ranges::sort(work, {}, &ImportCandidate::slug);
    return work;
}

} // namespace

void ImportCommit::run(const ImportPlan &plan, const Progress &progress)
{
    const QList<ImportCandidate> work = workList(plan);
    const int total = static_cast<int>(work.size());
    m_active = activeManifests(m_workspace);
    for (int done = 0; done < total; ++done) {
        progress(done, total);
        importCandidate(work.at(done));
    }
    progress(total, total);

    QList<TargetKind> failed = allCases<TargetKind>();
    failed.removeIf([this](TargetKind kind) { return !m_failedTargets.contains(kind); });
    if (!failed.isEmpty())
        throw VORNELWorkspaceError::partialSync(failed);
}

void ImportCommit::importCandidate(const ImportCandidate &candidate)
{
    WorkspaceValidation::validateSlug(candidate.slug);
    const auto active = std::ranges::find(m_active, candidate.slug,
                                          [](const SkillRecord &record) { return record.manifest.slug; });
    if (active != m_active.end())
        return adopt(candidate, *active);

    m_active.append(addToLibrary(candidate));
    try {
        TargetSynchronizer(m_workspace).synchronize(m_active.last());
    } catch (const VORNELWorkspaceError &error) {
        const auto *partial = error.as<WorkspaceErrorCase::PartialSync>();
        if (partial == nullptr)
            throw;
        m_failedTargets += QSet<TargetKind>(partial->kinds.begin(), partial->kinds.end());
    }
}

void ImportCommit::adopt(const ImportCandidate &candidate, const SkillRecord &skill) const
{
    const auto hasContent = [&](const fs::path &folder) {
        const auto tree = SecureFileTree::snapshot(m_workspace.files, folder, TreeFilter::excludingManifest);
        return QString::fromStdString(tree.digest) == candidate.digest;
    };
    if (!hasContent(skill.url))
        throw VORNELWorkspaceError::duplicateSlug(candidate.slug);
    if (!m_store.hasSnapshot(skill.manifest))
        m_store.createSnapshot(skill.manifest, skill.url);
    // A target that still fails is remembered with the skill, and doesn't hold back the import again. One
    // whose content has changed since the scan is left for the user to look at.
    bestEffort([&] {
        if (hasContent(candidate.sourceURL))
            TargetSynchronizer(m_workspace).synchronize(skill);
    });
}

void ImportCommit::stageSource(const ImportCandidate &candidate, const fs::path &stage) const
{
    FileSystem &files = m_workspace.files;
    SecureFileTree::copyTree(files, candidate.sourceURL, stage, TreeFilter::excludingManifest);
    // Comparing the copy, not the source, leaves no moment in which the source could still change.
    const auto staged = SecureFileTree::snapshot(files, stage, TreeFilter::excludingManifest);
    if (QString::fromStdString(staged.digest) != candidate.digest)
        throw VORNELWorkspaceError::integrityFailure(u"Le contenu de "_s + candidate.slug +
                                                     u" a changé depuis le scan."_s);
}

SkillRecord ImportCommit::addToLibrary(const ImportCandidate &candidate) const
{
    const fs::path stage = m_store.makeStage();
    try {
        stageSource(candidate, stage);
        const SkillText::Metadata metadata =
            SkillText::frontmatterMetadata(m_store.readSkillMD(stage, candidate.slug), candidate.slug);
        const QDateTime now = currentInstant();
        SkillRecord skill{{.schemaVersion = 1,
                           .id = QUuid::createUuid(),
                           .slug = candidate.slug,
                           .displayName = metadata.name,
                           .summary = metadata.summary,
                           .category = SkillCategory::otherID,
                           .tags = {},
                           .maturity = Maturity::active,
                           .revision = 1,
                           .createdAt = now,
                           .updatedAt = now},
                          m_workspace.config.canonical(candidate.slug)};
        m_store.writeManifest(skill.manifest, stage);
        m_store.publish(stage, skill.url);
        m_store.createSnapshot(skill.manifest, skill.url);
        return skill;
    } catch (...) {
        bestEffort([&] { m_workspace.files.removeTree(stage); });
        throw;
    }
}

} // namespace vornel

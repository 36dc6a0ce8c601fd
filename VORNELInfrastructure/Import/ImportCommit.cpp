#include "ImportCommit.h"

#include <VORNELCore/Errors/VORNELWorkspaceError.h>
#include <VORNELCore/Errors/WorkspaceValidation.h>
#include <VORNELCore/Records/SerializedForms.h>
#include <VORNELInfrastructure/Disk/BestEffort.h>
#include <VORNELInfrastructure/History/SkillHistory.h>
#include <VORNELInfrastructure/Skills/SkillText.h>
#include <VORNELInfrastructure/Tree/ParallelMap.h>
#include <VORNELInfrastructure/Tree/SecureFileTree.h>

#include <algorithm>
#include <iterator>
#include <mutex>
#include <ranges>
#include <vector>

using namespace Qt::StringLiterals;

namespace vornel {

namespace fs = std::filesystem;

namespace {

/// So many skills are flushed to the disk at once. Larger batches wait less often, but when the import is cut
/// short, more skills are left to import again.
constexpr qsizetype batchSize = 512;

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

/// What is staged of a candidate.
struct ImportCommit::StagedSkill
{
    const ImportCandidate *candidate;
    const SkillRecord *known = nullptr; ///< the skill that is in the library already; then nothing is staged
    std::optional<StagedFolder> canonical = {};
    std::optional<StagedFolder> history = {};
    Install install = {};
    std::exception_ptr failure = nullptr; ///< why it could not be staged

    std::vector<fs::path> stages() const
    {
        if (!canonical)
            return {};
        std::vector<fs::path> all = install.stages();
        all.insert(all.end(), {canonical->stage.path(), history->stage.path()});
        return all;
    }
};

/// What became of it.
struct ImportCommit::CommittedSkill
{
    StagedSkill &staged;
    CommitResult canonical = {};
    CommitResult history = {};
    CopyResults copies = {};

    bool isAdded() const { return staged.canonical && !canonical.failure; }
};

void ImportCommit::run(const ImportPlan &plan, const Progress &progress)
{
    const QList<ImportCandidate> work = workList(plan);
    const auto total = static_cast<int>(work.size());
    m_active = activeManifests(m_workspace);
    m_unusableTargets = m_targets.prepareRoots();

    std::mutex mutex;
    int done = 0;
    progress(done, total);
    const auto advance = [&] {
        const std::scoped_lock lock(mutex);
        progress(++done, total);
    };
    for (qsizetype first = 0; first < work.size(); first += batchSize)
        importBatch(work.mid(first, batchSize), advance);

    QList<TargetKind> failed = allCases<TargetKind>();
    failed.removeIf([this](TargetKind kind) { return !m_failedTargets.contains(kind); });
    if (!failed.isEmpty())
        throw VORNELWorkspaceError::partialSync(failed);
}

void ImportCommit::importBatch(const QList<ImportCandidate> &batch, const std::function<void()> &staged)
{
    std::vector<StagedSkill> skills = parallelMap(batch, [&](const ImportCandidate &candidate) {
        StagedSkill skill = stage(candidate);
        staged();
        return skill;
    });
    const auto failed =
        std::ranges::find_if(skills, [](const StagedSkill &skill) { return skill.failure != nullptr; });
    commit({skills.begin(), failed});
    if (failed != skills.end())
        std::rethrow_exception(failed->failure);
}

ImportCommit::StagedSkill ImportCommit::stage(const ImportCandidate &candidate) const
try {
    WorkspaceValidation::validateSlug(candidate.slug);
    StagedSkill skill{.candidate = &candidate, .known = activeSkill(candidate.slug)};
    if (skill.known != nullptr) {
        if (!holdsContent(candidate, skill.known->folder))
            throw VORNELWorkspaceError::duplicateSlug(candidate.slug);
        return skill;
    }
    skill.canonical.emplace(m_store.makeStage(), CommitPlace{m_workspace.config.canonical(candidate.slug)});
    const fs::path &folder = skill.canonical->stage.path();
    const FileTreeSnapshot content = stageContent(candidate, folder);
    const SkillManifest manifest = stageManifest(candidate, folder);
    skill.history.emplace(SkillHistory(m_workspace).stageFirst(manifest, folder));
    skill.install = m_targets.stage(manifest, content, m_targets.find(manifest, m_unusableTargets));
    return skill;
} catch (...) {
    return {.candidate = &candidate, .failure = std::current_exception()};
}

FileTreeSnapshot ImportCommit::stageContent(const ImportCandidate &candidate, const fs::path &stage) const
{
    FileTreeSnapshot copied = SecureFileTree::copyTreeAndSnapshot(m_workspace.files, candidate.sourceURL,
                                                                  stage, TreeFilter::excludingManifest);
    if (QString::fromStdString(copied.digest) != candidate.digest)
        throw VORNELWorkspaceError::integrityFailure(u"Le contenu de "_s + candidate.slug +
                                                     u" a changé depuis le scan."_s);
    copied.root = stage;
    return copied;
}

SkillManifest ImportCommit::stageManifest(const ImportCandidate &candidate, const fs::path &stage) const
{
    const SkillText::Metadata metadata =
        SkillText::frontmatterMetadata(m_store.readSkillMD(stage, candidate.slug), candidate.slug);
    const QDateTime now = currentInstant();
    SkillManifest manifest{.schemaVersion = 1,
                           .id = QUuid::createUuid(),
                           .slug = candidate.slug,
                           .displayName = metadata.name,
                           .summary = metadata.summary,
                           .category = SkillCategory::otherID,
                           .tags = {},
                           .maturity = Maturity::active,
                           .revision = 1,
                           .createdAt = now,
                           .updatedAt = now};
    m_store.writeManifest(manifest, stage, Durability::Later);
    return manifest;
}

void ImportCommit::commit(std::span<StagedSkill> skills)
{
    std::vector<fs::path> stages;
    for (const StagedSkill &skill : skills)
        std::ranges::copy(skill.stages(), std::back_inserter(stages));
    Commit commit(m_workspace.files);
    commit.flush(stages);

    std::vector<CommittedSkill> all;
    for (StagedSkill &skill : skills)
        all.push_back({skill, skill.canonical ? commit.rename(*skill.canonical) : CommitResult()});
    commit.flushNames();
    auto added = all | std::views::filter(&CommittedSkill::isAdded);
    for (CommittedSkill &skill : added)
        skill.history = commit.rename(*skill.staged.history);
    commit.flushNames(); // what a copy replaces goes into the history, which has to be on the disk by then
    for (CommittedSkill &skill : added)
        skill.copies = m_targets.rename(skill.staged.install, commit);
    commit.flushNames();

    std::exception_ptr failure;
    for (const CommittedSkill &skill : all) {
        const std::exception_ptr own = failureOf([&] { finish(skill); });
        failure = failure ? failure : own;
    }
    if (failure)
        std::rethrow_exception(failure);
}

void ImportCommit::finish(const CommittedSkill &skill)
{
    if (skill.staged.known != nullptr)
        return adopt(*skill.staged.candidate, *skill.staged.known);
    if (skill.canonical.failure)
        std::rethrow_exception(skill.canonical.failure);
    for (const TargetKind kind : m_targets.finish(skill.staged.install, skill.copies) | std::views::keys)
        m_failedTargets.insert(kind);
    if (skill.history.failure)
        std::rethrow_exception(skill.history.failure);
}

void ImportCommit::adopt(const ImportCandidate &candidate, const SkillRecord &skill) const
{
    SkillHistory(m_workspace).keepRevision(skill.manifest, skill.folder);
    // A target that still fails is remembered with the skill, and doesn't hold back the import again. One
    // whose content has changed since the scan is left for the user to look at.
    bestEffort([&] {
        if (holdsContent(candidate, candidate.sourceURL))
            m_targets.synchronize(skill);
    });
}

const SkillRecord *ImportCommit::activeSkill(const QString &slug) const
{
    const auto active =
        std::ranges::find(m_active, slug, [](const SkillRecord &record) { return record.manifest.slug; });
    return active == m_active.end() ? nullptr : &*active;
}

bool ImportCommit::holdsContent(const ImportCandidate &candidate, const fs::path &folder) const
{
    const auto tree = SecureFileTree::snapshot(m_workspace.files, folder, TreeFilter::excludingManifest);
    return QString::fromStdString(tree.digest) == candidate.digest;
}

} // namespace vornel

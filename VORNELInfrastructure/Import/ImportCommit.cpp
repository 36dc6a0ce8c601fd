#include "ImportCommit.h"

#include <VORNELCore/Errors/VORNELWorkspaceError.h>
#include <VORNELCore/Errors/WorkspaceValidation.h>
#include <VORNELCore/Records/SerializedForms.h>
#include <VORNELInfrastructure/Disk/BestEffort.h>
#include <VORNELInfrastructure/Skills/SkillHistory.h>
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

/// As many skills wait for the disk together: the more, the shorter; and the more are to be done again when
/// the import is cut short.
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

/// A candidate on its way into the library.
struct ImportCommit::Entrant
{
    const ImportCandidate *candidate;
    const SkillRecord *known = nullptr; ///< the skill that is in the library already; then nothing is staged
    std::optional<Publication> canonical = {};
    std::optional<Publication> history = {};
    Install install = {};
    std::exception_ptr failure = nullptr;

    /// All that is staged.
    std::vector<Publication *> publications()
    {
        if (!canonical)
            return {};
        std::vector<Publication *> all{&*canonical, &*history};
        std::ranges::copy(install.publications(), std::back_inserter(all));
        return all;
    }
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
    std::vector<Entrant> entrants = parallelMap(batch, [&](const ImportCandidate &candidate) {
        Entrant entrant = prepare(candidate);
        staged();
        return entrant;
    });
    const auto failed =
        std::ranges::find_if(entrants, [](const Entrant &entrant) { return entrant.failure != nullptr; });
    admit({entrants.begin(), failed});
    if (failed != entrants.end())
        std::rethrow_exception(failed->failure);
}

ImportCommit::Entrant ImportCommit::prepare(const ImportCandidate &candidate) const
try {
    WorkspaceValidation::validateSlug(candidate.slug);
    Entrant entrant{.candidate = &candidate, .known = activeSkill(candidate.slug)};
    if (entrant.known != nullptr) {
        if (!holdsContent(candidate, entrant.known->url))
            throw VORNELWorkspaceError::duplicateSlug(candidate.slug);
        return entrant;
    }
    entrant.canonical.emplace(m_store.makeStage(), m_workspace.config.canonical(candidate.slug));
    const fs::path &folder = entrant.canonical->stage.path();
    const SkillManifest manifest = stage(candidate, folder);
    entrant.history.emplace(SkillHistory(m_workspace).stage(manifest, folder));
    entrant.install = m_targets.stage(manifest, folder, candidate.digest.toStdString(), m_unusableTargets);
    return entrant;
} catch (...) {
    return {.candidate = &candidate, .failure = std::current_exception()};
}

SkillManifest ImportCommit::stage(const ImportCandidate &candidate, const fs::path &stage) const
{
    const auto copied = SecureFileTree::copyTreeAndSnapshot(m_workspace.files, candidate.sourceURL, stage,
                                                            TreeFilter::excludingManifest);
    if (QString::fromStdString(copied.digest) != candidate.digest)
        throw VORNELWorkspaceError::integrityFailure(u"Le contenu de "_s + candidate.slug +
                                                     u" a changé depuis le scan."_s);
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

void ImportCommit::admit(std::span<Entrant> entrants)
{
    std::vector<Publication *> all;
    std::vector<Publication *> canonical;
    for (Entrant &entrant : entrants) {
        if (entrant.canonical)
            canonical.push_back(&*entrant.canonical);
        std::ranges::copy(entrant.publications(), std::back_inserter(all));
    }
    settle(m_workspace.files, all);
    place(m_workspace.files, canonical);

    std::vector<Publication *> histories;
    std::vector<Publication *> copies;
    for (Entrant &entrant : entrants) {
        if (!entrant.canonical || entrant.canonical->failure)
            continue;
        histories.push_back(&*entrant.history);
        std::ranges::copy(entrant.install.publications(), std::back_inserter(copies));
    }
    // What a copy replaces goes into the history, which has to be on the disk by then.
    place(m_workspace.files, histories);
    place(m_workspace.files, copies);

    std::exception_ptr failure;
    for (Entrant &entrant : entrants) {
        const std::exception_ptr own = failureOf([&] { conclude(entrant); });
        failure = failure ? failure : own;
    }
    if (failure)
        std::rethrow_exception(failure);
}

void ImportCommit::conclude(Entrant &entrant)
{
    if (entrant.known != nullptr)
        return adopt(*entrant.candidate, *entrant.known);
    if (entrant.canonical->failure)
        std::rethrow_exception(entrant.canonical->failure);
    m_targets.finish(entrant.install);
    for (const TargetKind kind : entrant.install.failures | std::views::keys)
        m_failedTargets.insert(kind);
    if (entrant.history->failure)
        std::rethrow_exception(entrant.history->failure);
}

void ImportCommit::adopt(const ImportCandidate &candidate, const SkillRecord &skill) const
{
    SkillHistory(m_workspace).keepRevision(skill.manifest, skill.url);
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

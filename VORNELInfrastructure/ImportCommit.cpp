#include "ImportCommit.h"

#include "BestEffort.h"
#include "ParallelMap.h"
#include "SecureFileTree.h"
#include "SkillText.h"
#include "TargetSynchronizer.h"
#include "TreeOperations.h"

#include <VORNELCore/SerializedForms.h>
#include <VORNELCore/VORNELWorkspaceError.h>
#include <VORNELCore/WorkspaceValidation.h>

#include <algorithm>
#include <mutex>
#include <ranges>
#include <vector>

using namespace Qt::StringLiterals;

namespace vornel {

namespace fs = std::filesystem;

namespace {

/// As many skills wait for the disk together: enough for the waiting to be short, few enough for the copies
/// that wait to take little room.
constexpr qsizetype batchSize = 128;

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
    SkillRecord skill = {};
    std::optional<Publication> canonical = {}; ///< nothing for a skill that is in the library already
    const ImportCandidate *candidate = nullptr;
    std::exception_ptr failure = nullptr;
};

void ImportCommit::run(const ImportPlan &plan, const Progress &progress)
{
    const QList<ImportCandidate> work = workList(plan);
    const auto total = static_cast<int>(work.size());
    m_active = activeManifests(m_workspace);

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
    for (const Entrant &left : std::ranges::subrange(failed, entrants.end())) {
        if (left.canonical)
            bestEffort([&] { removeTree(m_workspace.files, left.canonical->staged); });
    }
    const std::span prepared(entrants.begin(), failed);
    admit(prepared);
    for (const Entrant &entrant : prepared) {
        if (!entrant.canonical)
            adopt(entrant);
    }
    if (failed != entrants.end())
        std::rethrow_exception(failed->failure);
}

ImportCommit::Entrant ImportCommit::prepare(const ImportCandidate &candidate) const
try {
    WorkspaceValidation::validateSlug(candidate.slug);
    if (const SkillRecord *active = activeSkill(candidate.slug)) {
        if (!holdsContent(candidate, active->url))
            throw VORNELWorkspaceError::duplicateSlug(candidate.slug);
        return {.skill = *active, .candidate = &candidate};
    }
    const fs::path place = m_store.makeStage();
    const SkillRecord skill = stage(candidate, place);
    return {.skill = skill,
            .canonical = Publication{.staged = place, .destination = skill.url, .parking = {}},
            .candidate = &candidate};
} catch (...) {
    return {.failure = std::current_exception()};
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

SkillRecord ImportCommit::stage(const ImportCandidate &candidate, const fs::path &place) const
{
    const auto copied = SecureFileTree::copyTree(m_workspace.files, candidate.sourceURL, place,
                                                 TreeFilter::excludingManifest);
    try {
        if (QString::fromStdString(copied.digest) != candidate.digest)
            throw VORNELWorkspaceError::integrityFailure(u"Le contenu de "_s + candidate.slug +
                                                         u" a changé depuis le scan."_s);
        const SkillText::Metadata metadata =
            SkillText::frontmatterMetadata(m_store.readSkillMD(place, candidate.slug), candidate.slug);
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
        m_store.writeManifest(skill.manifest, place, Durability::Later);
        return skill;
    } catch (...) {
        bestEffort([&] { removeTree(m_workspace.files, place); });
        throw;
    }
}

void ImportCommit::admit(std::span<Entrant> entrants)
{
    std::vector<Publication *> publications;
    for (Entrant &entrant : entrants) {
        if (entrant.canonical)
            publications.push_back(&*entrant.canonical);
    }
    publish(m_workspace.files, publications);

    QList<SkillRecord> admitted;
    for (const Entrant &entrant : entrants) {
        if (entrant.canonical && !entrant.canonical->failure)
            admitted.append(entrant.skill);
    }
    m_active += admitted;
    const std::exception_ptr noHistory = failureOf([&] { keepHistory(admitted); });
    m_failedTargets += TargetSynchronizer(m_workspace).synchronizeAll(admitted);

    for (const Publication *publication : publications) {
        if (publication->failure)
            std::rethrow_exception(publication->failure);
    }
    if (noHistory)
        std::rethrow_exception(noHistory);
}

void ImportCommit::keepHistory(const QList<SkillRecord> &skills) const
{
    std::vector<Publication> copies = parallelMap(skills, [this](const SkillRecord &skill) {
        return m_store.stageSnapshot(skill.manifest, skill.url);
    });
    std::vector<Publication *> publications;
    for (Publication &copy : copies)
        publications.push_back(&copy);
    publish(m_workspace.files, publications);
    for (const Publication &copy : copies) {
        if (copy.failure)
            std::rethrow_exception(copy.failure);
    }
}

void ImportCommit::adopt(const Entrant &entrant) const
{
    const SkillRecord &skill = entrant.skill;
    if (!m_store.hasSnapshot(skill.manifest))
        m_store.createSnapshot(skill.manifest, skill.url);
    // A target that still fails is remembered with the skill, and doesn't hold back the import again. One
    // whose content has changed since the scan is left for the user to look at.
    bestEffort([&] {
        if (holdsContent(*entrant.candidate, entrant.candidate->sourceURL))
            TargetSynchronizer(m_workspace).synchronize(skill);
    });
}

} // namespace vornel

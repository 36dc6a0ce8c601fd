#include "SynchronizationPass.h"

#include "TargetFolder.h"

#include <VORNELCore/Errors/VORNELWorkspaceError.h>
#include <VORNELInfrastructure/Skills/SkillAuthoring.h>
#include <VORNELInfrastructure/Tree/ParallelMap.h>
#include <VORNELInfrastructure/Tree/SecureFileTree.h>

#include <QDeadlineTimer>

#include <algorithm>
#include <chrono>

namespace vornel {

namespace {

/// Long enough for a large library in which nothing has to be written, short enough for others who wait.
constexpr std::chrono::milliseconds turn{500};

/// The number of skills that are checked side by side, before the first of them is synchronised.
constexpr qsizetype groupSize = 128;

/// Finds the skills that are in sync already. May be asked from several threads.
class InSyncCheck
{
public:
    explicit InSyncCheck(const Workspace &workspace)
        : m_workspace(workspace), m_skills(workspace.files.openFolder(workspace.config.skills()))
    {
        for (const TargetKind kind : allCases<TargetKind>())
            m_targets.emplace_back(workspace, kind);
    }

    /// The skill, if it is in sync; nothing where there is something to do, or a failure to tell.
    std::optional<SkillDetail> detailOf(const SkillRecord &skill) const
    try {
        const QString &slug = skill.manifest.slug;
        const std::string name = slug.toStdString();
        const FileTreeSnapshot canonical =
            SecureFileTree::snapshot(m_workspace.files, m_skills, name, TreeFilter::all);
        const std::string content = canonical.contentDigest();
        const auto holdsContent = [&](const TargetFolder &target) {
            const std::optional<FileTreeSnapshot> copy = target.snapshot(name);
            return copy && copy->digest == content;
        };
        if (!std::ranges::all_of(m_targets, holdsContent))
            return std::nullopt;
        return SkillDetail{skill.manifest, SkillFolderStore(m_workspace).readSkillMD(skill.folder, slug),
                           canonical.relativeFiles(), QString::fromStdString(canonical.digest),
                           SyncState::inSync};
    } catch (const std::exception &) {
        return std::nullopt;
    }

private:
    const Workspace &m_workspace;
    Folder m_skills;
    std::vector<TargetFolder> m_targets;
};

SyncOutcome outcomeOf(const Workspace &workspace, const QUuid &id, const SkillRecord *skill)
try {
    if (skill == nullptr)
        throw VORNELWorkspaceError::skillNotFound(id);
    return {id, SkillAuthoring(workspace).synchronize(*skill), nullptr};
} catch (...) {
    return {id, std::nullopt, std::current_exception()};
}

} // namespace

bool SynchronizationPass::isDone() const
{
    return m_outcomes.size() == m_ids.size() || (m_stop.stop_requested() && !m_outcomes.isEmpty());
}

void SynchronizationPass::giveUp(const std::exception_ptr &failure)
{
    for (const QUuid &id : m_ids.mid(m_outcomes.size()))
        m_outcomes.append({id, std::nullopt, failure});
}

void SynchronizationPass::takeTurn(const Workspace &workspace, const std::function<void(int done)> &progress)
{
    const QDeadlineTimer end(turn);
    const QList<SkillRecord> active = activeManifests(workspace);
    QHash<QUuid, const SkillRecord *> known;
    for (const SkillRecord &skill : active)
        known.insert(skill.manifest.id, &skill);

    const InSyncCheck check(workspace);
    while (!isDone() && !end.hasExpired()) {
        const QList<QUuid> group = m_ids.mid(m_outcomes.size(), groupSize);
        const auto details = parallelMap(group, [&](const QUuid &id) {
            const SkillRecord *skill = known.value(id);
            return skill != nullptr ? check.detailOf(*skill) : std::nullopt;
        });
        for (std::size_t index = 0; index < details.size() && !isDone(); ++index) {
            const QUuid &id = group.at(static_cast<qsizetype>(index));
            if (details[index]) {
                workspace.failedSyncTargets.remove(id);
                workspace.foundCopies.remove(id);
                m_outcomes.append({id, details[index], nullptr});
            } else {
                m_outcomes.append(outcomeOf(workspace, id, known.value(id)));
            }
            progress(static_cast<int>(m_outcomes.size()));
            if (!details[index] && end.hasExpired())
                break;
        }
    }
}

} // namespace vornel

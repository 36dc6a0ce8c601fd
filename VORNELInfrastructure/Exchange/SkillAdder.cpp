#include "SkillAdder.h"

#include <VORNELCore/Errors/VORNELWorkspaceError.h>
#include <VORNELInfrastructure/Adoption/ComposedRevision.h>
#include <VORNELInfrastructure/Disk/TreeOperations.h>
#include <VORNELInfrastructure/Tree/TreeDifferences.h>
#include <VORNELInfrastructure/Workspace/Overview.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vornel {

namespace fs = std::filesystem;

namespace {

VORNELWorkspaceError changedSinceReview()
{
    return VORNELWorkspaceError::integrityFailure(u"Ce qui est à ajouter a changé depuis l’examen."_s);
}

ComposedTree treeOf(const FileTreeSnapshot &content)
{
    ComposedTree tree;
    tree.takeAll(content);
    return tree;
}

} // namespace

SkillAdder::SkillAdder(const Workspace &workspace, const QList<fs::path> &sources)
    : m_workspace(workspace),
      m_authoring(workspace),
      m_active(activeManifests(workspace)),
      m_offered(workspace)
{
    for (const fs::path &source : sources)
        m_offered.take(source);
}

QList<SkillAddition> SkillAdder::review() const
{
    QList<SkillAddition> additions;
    for (const auto &[slug, content] : m_offered.bySlug())
        additions.append(reviewed(slug, content));
    return additions;
}

SkillAddition SkillAdder::reviewed(const QString &slug, const FileTreeSnapshot &content) const
{
    SkillAddition addition{.slug = slug, .digest = QString::fromStdString(content.digest)};
    if (const SkillRecord *skill = known(slug)) {
        const FileTreeSnapshot own = contentOf(m_workspace, *skill);
        const bool isSame = own.digest == content.digest;
        addition.kind = isSame ? AdditionKind::identical : AdditionKind::different;
        addition.revision = skill->manifest.revision;
        addition.differences = differences(own, content);
        if (!isSame)
            requireText(m_workspace, *skill, treeOf(content));
    } else {
        m_authoring.manifestFor(content.root, slug); // for what it refuses
    }
    return addition;
}

std::optional<QByteArray> SkillAdder::readFile(const SkillAddition &reviewed,
                                               const QString &relativePath) const
{
    const auto skill = m_offered.bySlug().find(reviewed.slug);
    if (skill == m_offered.bySlug().end() || skill->second.digest != reviewed.digest.toStdString())
        throw changedSinceReview();
    return SkillFolderStore(m_workspace).fileBytes(skill->second.root, relativePath);
}

QList<SkillDetail> SkillAdder::add(const QList<SkillAddition> &reviewed) const
{
    requireDecisions(reviewed);
    QList<SkillDetail> details;
    std::exception_ptr unwritten;
    for (const SkillAddition &addition : reviewed) {
        try {
            details.append(add(addition));
        } catch (const VORNELWorkspaceError &error) {
            if (error.as<WorkspaceErrorCase::PartialSync>() == nullptr)
                throw;
            unwritten = std::current_exception();
        }
    }
    if (unwritten)
        std::rethrow_exception(unwritten);
    return details;
}

/// Throws unless all still is as it was reviewed, and decided.
void SkillAdder::requireDecisions(const QList<SkillAddition> &reviewed) const
{
    QList<SkillAddition> undecided = reviewed;
    QList<QUuid> unresolved;
    for (SkillAddition &addition : undecided) {
        if (addition.kind == AdditionKind::different && !addition.choice && known(addition.slug) != nullptr)
            unresolved.append(known(addition.slug)->manifest.id);
        addition.choice.reset();
    }
    if (undecided != review())
        throw changedSinceReview();
    if (!unresolved.isEmpty())
        throw VORNELWorkspaceError::unresolvedCollisions(unresolved);
}

SkillDetail SkillAdder::add(const SkillAddition &addition) const
{
    const FileTreeSnapshot &content = m_offered.bySlug().at(addition.slug);
    if (addition.kind == AdditionKind::added)
        return m_authoring.add(
            m_authoring.manifestFor(content.root, addition.slug),
            [&](const fs::path &stage) { moveTree(m_workspace.files, content.root, stage); });
    const SkillRecord &skill = *known(addition.slug);
    if (addition.choice != AdditionChoice::added)
        return makeDetail(m_workspace, skill);
    return makeRevision(m_workspace, skill, treeOf(content));
}

const SkillRecord *SkillAdder::known(const QString &slug) const
{
    const auto skill =
        std::ranges::find(m_active, slug, [](const SkillRecord &record) { return record.manifest.slug; });
    return skill == m_active.end() ? nullptr : &*skill;
}

} // namespace vornel

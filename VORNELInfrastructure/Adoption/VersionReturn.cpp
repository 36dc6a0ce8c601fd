#include "VersionReturn.h"

#include "ComposedRevision.h"
#include "TakenPaths.h"

#include <VORNELInfrastructure/History/VersionInspector.h>
#include <VORNELInfrastructure/Skills/SkillAuthoring.h>
#include <VORNELInfrastructure/Workspace/Overview.h>

using namespace Qt::StringLiterals;

namespace vornel {

SkillDetail returnToVersion(const Workspace &workspace, const QUuid &id, qint64 expectedRevision,
                            const QString &entry, const QStringList &paths)
{
    const SkillRecord skill = SkillAuthoring(workspace).recordAt(id, expectedRevision);
    const FileTreeSnapshot version = VersionInspector(workspace).contentOf(skill, entry);
    const FileTreeSnapshot content = contentOf(workspace, skill);
    ComposedTree tree = treeWith(content, {version, u"dans cette version"_s}, paths);
    if (tree.digest() == content.digest)
        return makeDetail(workspace, skill);
    requireText(workspace, skill, tree);
    return makeRevision(workspace, skill, std::move(tree));
}

} // namespace vornel

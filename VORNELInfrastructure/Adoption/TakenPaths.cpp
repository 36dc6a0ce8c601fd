#include "TakenPaths.h"

#include <VORNELCore/Errors/VORNELWorkspaceError.h>
#include <VORNELCore/Errors/WorkspaceValidation.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vornel {

namespace {

bool holds(const FileTreeSnapshot &tree, const std::string &path)
{
    return std::ranges::any_of(tree.entries, [&](const FileTreeSnapshot::Entry &entry) {
        return isAtOrBelow(entry.relativePath, path);
    });
}

std::string treePath(QString typed)
{
    while (typed.endsWith(u'/'))
        typed.chop(1);
    WorkspaceValidation::validateRelativePath(typed.toUtf8());
    return typed.toStdString();
}

} // namespace

ComposedTree treeWith(const FileTreeSnapshot &library, const TakenVersion &version, const QStringList &paths)
{
    ComposedTree tree;
    tree.takeAll(paths.isEmpty() ? version.content : library);
    for (const QString &typed : paths) {
        const std::string path = treePath(typed);
        if (!holds(library, path) && !holds(version.content, path))
            throw VORNELWorkspaceError::integrityFailure(
                u"«\u00A0%1\u00A0» n’est ni dans la bibliothèque ni %2."_s.arg(typed, version.place));
        tree.replace(version.content, path);
    }
    return tree;
}

} // namespace vornel

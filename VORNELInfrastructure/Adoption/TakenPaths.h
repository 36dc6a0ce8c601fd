#pragma once

#include <VORNELInfrastructure/Tree/ComposedTree.h>

#include <QStringList>

namespace vornel {

/// A version of a skill of which something is taken.
struct TakenVersion
{
    const FileTreeSnapshot &content;
    QString place; ///< where it is, for messages: "dans la copie de Claude"
};

/// What the library holds, with these files and folders made those of a version; with none, that version
/// whole. A path is as the user gives it: that of a folder may end in "/". Throws `invalidPath` for one out
/// of the folder, and `integrityFailure` for one that neither side has.
ComposedTree treeWith(const FileTreeSnapshot &library, const TakenVersion &version, const QStringList &paths);

} // namespace vornel

#include "FileEdit.h"

#include <VORNELCore/Errors/VORNELWorkspaceError.h>
#include <VORNELCore/Errors/WorkspaceValidation.h>
#include <VORNELCore/Library/FilePathRules.h>
#include <VORNELCore/Records/SerializedForms.h>
#include <VORNELCore/Records/SkillFiles.h>
#include <VORNELInfrastructure/Adoption/ComposedRevision.h>
#include <VORNELInfrastructure/Workspace/Overview.h>

#include <ranges>
#include <set>

using namespace Qt::StringLiterals;

namespace vornel {

using Entry = FileTreeSnapshot::Entry;

namespace {

VORNELWorkspaceError refusal(const QString &sentence, const std::string &path)
{
    return VORNELWorkspaceError::integrityFailure(sentence.arg(QString::fromStdString(path)));
}

/// The path of what may be a folder, which may end in "/".
std::string usablePath(QString typed)
{
    while (typed.size() > 1 && typed.endsWith(u'/'))
        typed.chop(1);
    FilePathRules::requireUsable(typed);
    return typed.toStdString();
}

/// Makes changes in a tree, or refuses those that can't be made in it as it stands then.
class TreeEdit
{
public:
    explicit TreeEdit(ComposedTree &tree) : m_tree(tree) {}

    void operator()(const WrittenFile &file) const
    {
        FilePathRules::requireUsable(file.path);
        const std::string path = file.path.toStdString();
        if (file.bytes.size() > SkillFiles::sizeLimit)
            throw refusal(u"«\u00A0%1\u00A0» dépasse 25\u00A0Mio."_s, path);
        if (m_tree.kindAt(path) == Entry::Kind::directory)
            throw refusal(u"«\u00A0%1\u00A0» est un dossier."_s, path);
        requireFoldersAbove(path);
        m_tree.put(path, file.bytes);
    }

    void operator()(const NewFolder &folder) const { m_tree.putFolder(freePath(folder.path)); }

    void operator()(const MovedPath &moved) const
    {
        const std::string from = movablePath(moved.from);
        const std::string to = freePath(moved.to);
        FilePathRules::requireElsewhere(QString::fromStdString(from), QString::fromStdString(to));
        m_tree.move(from, to);
    }

    void operator()(const RemovedPath &removed) const { m_tree.remove(movablePath(removed.path)); }

private:
    std::string freePath(const QString &typed) const
    {
        std::string path = usablePath(typed);
        if (m_tree.kindAt(path))
            throw refusal(u"«\u00A0%1\u00A0» existe déjà."_s, path);
        requireFoldersAbove(path);
        return path;
    }

    std::string movablePath(const QString &typed) const
    {
        std::string path = usablePath(typed);
        if (path == SkillFiles::text)
            throw refusal(u"«\u00A0%1\u00A0» ne peut être ni supprimé ni déplacé."_s, path);
        if (!m_tree.kindAt(path))
            throw refusal(u"La compétence ne contient pas «\u00A0%1\u00A0»."_s, path);
        return path;
    }

    void requireFoldersAbove(const std::string &path) const
    {
        FilePathRules::requireFoldersAbove(QString::fromStdString(path), [this](const QString &above) {
            return m_tree.kindAt(above.toStdString()) == Entry::Kind::file;
        });
    }

    ComposedTree &m_tree;
};

} // namespace

SkillDetail FileEdit::run(const QUuid &id, const QList<PathChange> &changes, qint64 expectedRevision) const
{
    const SkillRecord skill = m_authoring.recordAt(id, expectedRevision);
    const FileTreeSnapshot former = folderTree(m_workspace, skill);
    ComposedTree tree;
    tree.takeAll(former);
    for (const PathChange &change : changes)
        std::visit(TreeEdit(tree), change);
    for (const Entry &entry : tree.entries())
        FilePathRules::requireReachable(QString::fromStdString(entry.relativePath),
                                        entry.kind == Entry::Kind::directory);
    if (tree.digest() == former.digest)
        return makeDetail(m_workspace, skill, former);
    requireText(m_workspace, skill, tree);
    return m_authoring.revise(skill, [&](const FileTreeSnapshot & /*former*/) { return tree; });
}

QStringList FileEdit::emptyFolders(const QUuid &id) const
{
    const FileTreeSnapshot tree = folderTree(m_workspace, activeRecord(m_workspace, id));
    QStringList folders;
    std::set<std::filesystem::path> filled;                         // each with the folders above it
    for (const Entry &entry : tree.entries | std::views::reverse) { // what a folder holds comes before it
        if (entry.kind == Entry::Kind::file || filled.contains(entry.relativePath))
            filled.insert(std::filesystem::path(entry.relativePath).parent_path());
        else
            folders.prepend(QString::fromStdString(entry.relativePath));
    }
    return folders;
}

std::shared_ptr<QFile> FileEdit::open(const QUuid &id, const QString &relativePath) const
{
    WorkspaceValidation::validateRelativePath(relativePath.toUtf8());
    const std::filesystem::path path = activeRecord(m_workspace, id).folder / pathFromText(relativePath);
    return m_workspace.files.openForOthers(m_workspace.files.openFolder(path.parent_path()), path.filename());
}

} // namespace vornel

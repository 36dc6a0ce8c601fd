#include "SkillFileListModel.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vornel {

namespace {

/// In a larger skill, folders begin closed.
constexpr qsizetype mostFilesShownAtOnce = 200;

void collectFolders(const QList<SkillFileNode> &nodes, QSet<QString> &paths)
{
    for (const SkillFileNode &node : nodes) {
        if (!node.children)
            continue;
        paths.insert(node.path);
        collectFolders(*node.children, paths);
    }
}

} // namespace

void SkillFileListModel::setRelativeFiles(const QStringList &files)
{
    if (std::exchange(m_relativeFiles, files) == files)
        return;
    rebuild();
    Q_EMIT relativeFilesChanged();
}

void SkillFileListModel::setEmptyFolders(const QStringList &folders)
{
    if (std::exchange(m_emptyFolders, folders) == folders)
        return;
    rebuild();
    Q_EMIT emptyFoldersChanged();
}

void SkillFileListModel::setUnsavedFiles(const QStringList &files)
{
    if (std::exchange(m_unsavedFiles, files) == files)
        return;
    rebuild();
    Q_EMIT unsavedFilesChanged();
}

QStringList SkillFileListModel::allPaths() const
{
    QStringList paths = m_relativeFiles;
    for (const QString &file : m_unsavedFiles) {
        if (!paths.contains(file))
            paths.append(file);
    }
    for (const QString &folder : m_emptyFolders)
        paths.append(folder + u'/');
    return paths;
}

/// A folder that the user has closed stays so while its skill is shown.
void SkillFileListModel::rebuild()
{
    const QStringList paths = allPaths();
    if (std::exchange(m_paths, paths) == paths)
        return;
    beginResetModel();
    const QList<SkillFileNode> tree = skillFileTree(paths);
    QSet<QString> folders;
    if (paths.size() <= mostFilesShownAtOnce)
        collectFolders(tree, folders);
    m_openFolders.unite(folders - m_knownFolders);
    m_knownFolders = folders;
    m_rows = rows(tree, 0);
    endResetModel();
}

int SkillFileListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant SkillFileListModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const auto &[node, depth] = m_rows.at(index.row());
    switch (role) {
    case NameRole:
        return node.name;
    case PathRole:
        return node.path;
    case SymbolRole:
        return m_openFolders.contains(node.path) ? u"folder-open"_s : icon(node);
    case DepthRole:
        return depth;
    case IsFolderRole:
        return node.children.has_value();
    case IsOpenRole:
        return m_openFolders.contains(node.path);
    default:
        return {};
    }
}

QHash<int, QByteArray> SkillFileListModel::roleNames() const
{
    return {{NameRole, "name"},   {PathRole, "path"},         {SymbolRole, "symbol"},
            {DepthRole, "depth"}, {IsFolderRole, "isFolder"}, {IsOpenRole, "isOpen"}};
}

int SkillFileListModel::rowOf(const QString &path) const
{
    const auto found = std::ranges::find(m_rows, path, [](const Row &row) { return row.node.path; });
    return found == m_rows.end() ? -1 : static_cast<int>(found - m_rows.begin());
}

void SkillFileListModel::setOpen(int row, bool isOpen)
{
    if (row < 0 || row >= m_rows.size())
        return;
    const auto [node, depth] = m_rows.at(row);
    if (!node.children || m_openFolders.contains(node.path) == isOpen)
        return;
    const QList<Row> inside = rows(*node.children, depth + 1);
    const int first = row + 1;
    const int last = row + static_cast<int>(inside.size());
    if (isOpen) {
        m_openFolders.insert(node.path);
        beginInsertRows({}, first, last);
        m_rows = m_rows.first(first) + inside + m_rows.sliced(first);
        endInsertRows();
    } else {
        m_openFolders.remove(node.path);
        beginRemoveRows({}, first, last);
        m_rows.remove(first, inside.size());
        endRemoveRows();
    }
    Q_EMIT dataChanged(index(row), index(row));
}

QList<SkillFileListModel::Row> SkillFileListModel::rows(const QList<SkillFileNode> &nodes, int depth) const
{
    QList<Row> all;
    for (const SkillFileNode &node : nodes) {
        all.append({node, depth});
        if (node.children && m_openFolders.contains(node.path))
            all.append(rows(*node.children, depth + 1));
    }
    return all;
}

} // namespace vornel

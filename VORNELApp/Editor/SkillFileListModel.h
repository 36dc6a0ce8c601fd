#pragma once

#include "SkillFileNode.h"

#include <QAbstractListModel>
#include <QSet>
#include <QtQml/qqmlregistration.h>

namespace vornel {

/// A skill's files as the rows of a tree, of which the folders open and close.
class SkillFileListModel : public QAbstractListModel
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(
        QStringList relativeFiles READ relativeFiles WRITE setRelativeFiles NOTIFY relativeFilesChanged)
    Q_PROPERTY(QStringList emptyFolders READ emptyFolders WRITE setEmptyFolders NOTIFY emptyFoldersChanged)
    Q_PROPERTY(QStringList unsavedFiles READ unsavedFiles WRITE setUnsavedFiles NOTIFY unsavedFilesChanged)

public:
    using QAbstractListModel::QAbstractListModel;

    QStringList relativeFiles() const { return m_relativeFiles; }
    void setRelativeFiles(const QStringList &files);

    /// The folders that hold no file; and the files of which something isn't saved, whether they are there or
    /// not.
    QStringList emptyFolders() const { return m_emptyFolders; }
    void setEmptyFolders(const QStringList &folders);
    QStringList unsavedFiles() const { return m_unsavedFiles; }
    void setUnsavedFiles(const QStringList &files);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    /// The row of a file or folder; -1 where none shows it.
    Q_INVOKABLE int rowOf(const QString &path) const;

    /// Opens or closes the folder of this row; of a file, nothing happens.
    Q_INVOKABLE void setOpen(int row, bool isOpen);

Q_SIGNALS:
    void relativeFilesChanged();
    void emptyFoldersChanged();
    void unsavedFilesChanged();

private:
    enum Role { NameRole = Qt::UserRole, PathRole, SymbolRole, DepthRole, IsFolderRole, IsOpenRole };

    struct Row
    {
        SkillFileNode node;
        int depth;
    };

    void rebuild();
    QStringList allPaths() const;
    QList<Row> rows(const QList<SkillFileNode> &nodes, int depth) const;

    QStringList m_relativeFiles;
    QStringList m_emptyFolders;
    QStringList m_unsavedFiles;
    QStringList m_paths; ///< of which the rows are made
    QSet<QString> m_openFolders;
    QSet<QString> m_knownFolders; ///< that were open to begin with, or may have been closed since
    QList<Row> m_rows;
};

} // namespace vornel

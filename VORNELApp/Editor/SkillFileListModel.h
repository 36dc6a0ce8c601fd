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

public:
    using QAbstractListModel::QAbstractListModel;

    QStringList relativeFiles() const { return m_relativeFiles; }
    void setRelativeFiles(const QStringList &files);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    /// Opens or closes the folder of this row; of a file, nothing happens.
    Q_INVOKABLE void setOpen(int row, bool isOpen);

Q_SIGNALS:
    void relativeFilesChanged();

private:
    enum Role { NameRole = Qt::UserRole, PathRole, SymbolRole, DepthRole, IsFolderRole, IsOpenRole };

    struct Row
    {
        SkillFileNode node;
        int depth;
    };

    QList<Row> rows(const QList<SkillFileNode> &nodes, int depth) const;

    QStringList m_relativeFiles;
    QSet<QString> m_openFolders;
    QList<Row> m_rows;
};

} // namespace vornel

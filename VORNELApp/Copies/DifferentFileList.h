#pragma once

#include <VORNELCore/Records/TargetComparison.h>

#include <QAbstractListModel>
#include <QtQml/qqmlregistration.h>

namespace vornel {

/// The files in which copies differ from the canonical folder, copy by copy, or both targets' folders from
/// each other, or a copy that was set aside, or is to be added, from the library.
class DifferentFileList : public QAbstractListModel
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("belongs to the copies")
    Q_PROPERTY(int chosenCount READ chosenCount NOTIFY chosenChanged)

public:
    using QAbstractListModel::QAbstractListModel;

    /// Files that were chosen stay so where they still differ.
    void setInspections(const QList<CopyInspection> &inspections);
    void setComparison(const TargetComparison &comparison);

    /// What leads from the library to a copy that was set aside, or to what is to be added.
    void setDifferences(const QList<FileDifference> &differences);

    /// Chooses this file, or no longer does, if its copy holds anything to adopt.
    Q_INVOKABLE void toggle(int row);

    /// How many files are chosen.
    int chosenCount() const;

    /// The chosen files of a copy.
    Q_INVOKABLE QStringList chosen(vornel::TargetKind target) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void chosenChanged();

private:
    enum Role {
        TargetRole = Qt::UserRole,
        AssistantRole,
        PathRole,
        SymbolRole,
        DescriptionRole,
        IsAdoptableRole,
        IsChosenRole
    };

    struct Row
    {
        TargetKind target; ///< where the file is looked at, or would be
        FileDifference difference;
        QString assistant;   ///< who alone is concerned
        QString description; ///< of what is different, and at whom
        bool isAdoptable = false;
        bool isChosen = false;
    };

    void setRows(const QList<Row> &rows);

    QList<Row> m_rows;
};

} // namespace vornel

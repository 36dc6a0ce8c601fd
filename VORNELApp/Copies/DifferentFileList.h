#pragma once

#include <VORNELCore/Records/TargetComparison.h>

#include <QAbstractListModel>
#include <QtQml/qqmlregistration.h>

namespace vornel {

/// The files in which copies differ from the canonical folder, copy by copy, or both targets' folders from
/// each other.
class DifferentFileList : public QAbstractListModel
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("belongs to the copies")

public:
    using QAbstractListModel::QAbstractListModel;

    void setInspections(const QList<CopyInspection> &inspections);
    void setComparison(const TargetComparison &comparison);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

private:
    enum Role { TargetRole = Qt::UserRole, AssistantRole, PathRole, SymbolRole, DescriptionRole };

    struct Row
    {
        TargetKind target; ///< where the file is looked at, or would be
        FileDifference difference;
        QString assistant;   ///< who alone is concerned
        QString description; ///< of what is different, and at whom
    };

    void setRows(const QList<Row> &rows);

    QList<Row> m_rows;
};

} // namespace vornel

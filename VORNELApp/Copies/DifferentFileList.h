#pragma once

#include <VORNELCore/Records/CopyInspection.h>

#include <QAbstractListModel>
#include <QtQml/qqmlregistration.h>

namespace vornel {

/// The files in which the copies of a skill differ from its canonical folder, copy by copy.
class DifferentFileList : public QAbstractListModel
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("belongs to the copies")

public:
    using QAbstractListModel::QAbstractListModel;

    void setInspections(const QList<CopyInspection> &inspections);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

private:
    enum Role { TargetRole = Qt::UserRole, AssistantRole, PathRole, SymbolRole, ChangeTextRole };

    struct Row
    {
        TargetKind target;
        FileDifference difference;
    };

    QList<Row> m_rows;
};

} // namespace vornel

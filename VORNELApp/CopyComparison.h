#pragma once

#include "AppModel.h"
#include "LineDiff.h"

#include <QAbstractListModel>
#include <QPointer>

namespace vornel {

/// The lines in which one file of an assistant's copy differs from that of the canonical folder.
class CopyComparison : public QAbstractListModel
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(vornel::AppModel *model MEMBER m_model REQUIRED)
    Q_PROPERTY(QUuid skillID MEMBER m_skillID REQUIRED)
    Q_PROPERTY(QString explanation READ explanation NOTIFY explanationChanged)

public:
    using QAbstractListModel::QAbstractListModel;

    /// Begins to compare this file of the skill.
    Q_INVOKABLE void compare(vornel::TargetKind target, const QString &path);

    /// Why there are no lines.
    QString explanation() const { return m_result.explanation; }

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void explanationChanged();

private:
    enum Role { TextRole = Qt::UserRole, SignRole, OldNumberRole, NewNumberRole };

    struct Result
    {
        QList<DiffLine> lines;
        QString explanation;
    };

    static QCoro::Task<> read(QPointer<CopyComparison> self, AppModel *model, QUuid id, TargetKind target,
                              QString path, int request);
    static Result difference(const QByteArray &canonical, const QByteArray &copy);
    void show(Result result);

    AppModel *m_model = nullptr;
    QUuid m_skillID;
    Result m_result;
    int m_request = 0; ///< counts the comparisons asked for: only the last one is shown
};

} // namespace vornel

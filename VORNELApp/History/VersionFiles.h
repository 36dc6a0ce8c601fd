#pragma once

#include <VORNELApp/Model/AppModel.h>
#include <VORNELApp/Model/LatestAnswer.h>

#include <QAbstractListModel>

namespace vornel {

/// The files of a version of a skill: first those that differ from what the library holds now, or from the
/// version before.
class VersionFiles : public QAbstractListModel
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(vornel::AppModel *model MEMBER m_model REQUIRED)
    Q_PROPERTY(QString explanation READ explanation NOTIFY shown)

public:
    explicit VersionFiles(QObject *parent = nullptr);

    /// Begins to compare a version with the one before it or, where that is empty, with what there is now.
    /// What is asked again stays shown until it is answered.
    Q_INVOKABLE void compare(const QUuid &skillID, const QString &entry, const QString &former);

    /// Why there are no rows; empty where there are, or before it is known.
    QString explanation() const { return m_explanation; }

    /// The path in a row; empty without one. And the row of a file; -1 without one.
    Q_INVOKABLE QString pathAt(int row) const { return m_rows.value(row).path; }
    Q_INVOKABLE int rowOf(const QString &path) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    /// A comparison has been answered.
    void shown();

private:
    enum Role { PathRole = Qt::UserRole, SymbolRole, DescriptionRole, IsInVersionRole };

    struct Row
    {
        QString path = {};
        std::optional<FileChange> change = {};
        bool isInVersion = true;

        bool operator==(const Row &) const = default;
    };

    /// What is compared.
    struct Comparison
    {
        QUuid skillID = {};
        QString entry = {};
        QString former = {};

        bool operator==(const Comparison &) const = default;
    };

    QFuture<HistoryComparison> read() const;
    void show(const Answer<HistoryComparison> &answer);
    QList<Row> rowsOf(HistoryComparison comparison) const;
    void setRows(const QList<Row> &rows);

    AppModel *m_model = nullptr;
    Comparison m_comparison;
    QList<Row> m_rows;
    QString m_explanation;
    LatestAnswer<Answer<HistoryComparison>> m_reading;
};

} // namespace vornel

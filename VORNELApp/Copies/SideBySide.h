#pragma once

#include <VORNELApp/Model/AppModel.h>
#include <VORNELApp/Text/LineDiff.h>

#include <QAbstractListModel>

namespace vornel {

/// What both copies of a skill hold of one file: the lines that differ with some of what lies around them,
/// those of Claude on the left and those of Codex on the right.
class SideBySide : public QAbstractListModel
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(vornel::AppModel *model MEMBER m_model REQUIRED)
    Q_PROPERTY(QString leftTitle READ leftTitle NOTIFY shown)
    Q_PROPERTY(QString rightTitle READ rightTitle NOTIFY shown)
    Q_PROPERTY(QString explanation READ explanation NOTIFY shown)

public:
    using QAbstractListModel::QAbstractListModel;

    /// Begins to compare the copies of this file.
    Q_INVOKABLE void compare(const QUuid &skillID, const QString &path);

    /// Whose file is on that side, and what it is: "Claude · 1,4 ko", "Codex · supprimé".
    QString leftTitle() const { return m_result.titles.value(0); }
    QString rightTitle() const { return m_result.titles.value(1); }

    /// Why there are no lines.
    QString explanation() const { return m_result.explanation; }

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void shown();

private:
    enum Role { LeftTextRole = Qt::UserRole, LeftNumberRole, RightTextRole, RightNumberRole, IsChangedRole };

    /// Lines that stand beside each other; one without a counterpart stands beside nothing.
    struct Pair
    {
        std::optional<DiffLine> left;
        std::optional<DiffLine> right;
    };

    struct Result
    {
        QStringList titles;
        QList<Pair> pairs;
        QString explanation;
    };

    using File = std::optional<QByteArray>;

    QCoro::Task<Result> look(QUuid skillID, QString path) const;
    QCoro::Task<QSet<TargetKind>> findFolders(QUuid skillID, QString path) const;
    static Result compared(const File &claude, const File &codex);
    static QList<Pair> pairs(const QList<DiffLine> &lines);
    void show(Result result);

    AppModel *m_model = nullptr;
    Result m_result;
    int m_request = 0; ///< counts the comparisons asked for: only the last one is shown
};

} // namespace vornel

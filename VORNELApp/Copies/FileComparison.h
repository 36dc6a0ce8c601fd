#pragma once

#include <VORNELApp/Model/AppModel.h>
#include <VORNELApp/Text/LineDiff.h>

#include <QAbstractListModel>

#include <variant>

namespace vornel {

/// The lines in which a file of a skill's folder or of an assistant's copy, or a text, differs from another.
class FileComparison : public QAbstractListModel
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(vornel::AppModel *model MEMBER m_model REQUIRED)
    Q_PROPERTY(QUuid skillID MEMBER m_skillID REQUIRED)
    Q_PROPERTY(QString explanation READ explanation NOTIFY explanationChanged)

public:
    using QAbstractListModel::QAbstractListModel;

    /// Begins to compare this file of a copy with that of the skill.
    Q_INVOKABLE void compare(vornel::TargetKind target, const QString &path);

    /// Begins to compare this file of a copy with a text that is to replace it.
    Q_INVOKABLE void compareWithText(vornel::TargetKind target, const QString &path, const QString &text);

    /// Begins to compare a text with this file of the skill.
    Q_INVOKABLE void compareText(const QString &path, const QString &text);

    /// Puts lines on the clipboard, from the first to the last, as their file holds them: without signs,
    /// numbers and remarks.
    Q_INVOKABLE void copy(int first, int last) const;

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

    /// A copy, or the canonical folder.
    using Folder = std::optional<TargetKind>;

    /// What is compared: the file of a folder, or a text.
    using Side = std::variant<Folder, QString>;

    void begin(const Side &before, const Side &after, const QString &path);
    QFuture<std::optional<QByteArray>> bytes(const Side &side, const QString &path) const;
    static QCoro::Task<Result> compare(QFuture<std::optional<QByteArray>> before,
                                       QFuture<std::optional<QByteArray>> after);
    static Result difference(const QByteArray &before, const QByteArray &after);
    void show(Result result);

    AppModel *m_model = nullptr;
    QUuid m_skillID;
    Result m_result;
    int m_request = 0; ///< counts the comparisons asked for: only the last one is shown
};

} // namespace vornel

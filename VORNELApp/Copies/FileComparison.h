#pragma once

#include <VORNELApp/Model/AppModel.h>
#include <VORNELApp/Text/LineDiff.h>

#include <QAbstractListModel>

namespace vornel {

/// The lines in which a file of a skill's folder, of an assistant's copy, of one that was set aside or of a
/// collision, or a text, differs from another.
class FileComparison : public QAbstractListModel
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(vornel::AppModel *model MEMBER m_model REQUIRED)
    Q_PROPERTY(QUuid skillID MEMBER m_skillID)
    Q_PROPERTY(QString explanation READ explanation NOTIFY explanationChanged)

public:
    using QAbstractListModel::QAbstractListModel;

    /// Begins to compare this file of a copy with that of the skill.
    Q_INVOKABLE void compare(vornel::TargetKind target, const QString &path);

    /// Begins to compare this file of a copy with a text that is to replace it.
    Q_INVOKABLE void compareWithText(vornel::TargetKind target, const QString &path, const QString &text);

    /// Begins to compare a text with this file of the skill.
    Q_INVOKABLE void compareText(const QString &path, const QString &text);

    /// Begins to compare this file of Codex's folder of this slug with that of Claude's, of a skill or not.
    Q_INVOKABLE void compareTargets(const QString &slug, const QString &path);

    /// Begins to compare this file of a copy that was set aside with that of the skill, if there is one.
    Q_INVOKABLE void compareSetAside(const QString &copy, const QString &path);

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

    /// The bytes of a side, when they have been read; nothing where it has no such file.
    using Bytes = QFuture<std::optional<QByteArray>>;

    /// Those of a file of the skill's folder or of a copy, or of a text.
    Bytes fileOf(std::optional<TargetKind> copy, const QString &path) const;
    static Bytes bytesOf(const QString &text);

    void begin(Bytes before, Bytes after);
    void showFolder();
    static QCoro::Task<Result> compare(Bytes before, Bytes after);
    static Result difference(const QByteArray &before, const QByteArray &after);
    void show(Result result);

    AppModel *m_model = nullptr;
    QUuid m_skillID;
    Result m_result;
    int m_request = 0; ///< counts the comparisons asked for: only the last one is shown
};

} // namespace vornel

#pragma once

#include <VORNELApp/Model/AppModel.h>
#include <VORNELApp/Model/LatestAnswer.h>
#include <VORNELApp/Text/LineDiff.h>

#include <QAbstractListModel>

namespace vornel {

/// The lines in which a file of a skill's folder, of a version, of an assistant's copy, of one that was set
/// aside, of a collision or of what is to be added, or a text, differs from another.
class FileComparison : public QAbstractListModel
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(vornel::AppModel *model MEMBER m_model REQUIRED)
    Q_PROPERTY(QUuid skillID MEMBER m_skillID)
    Q_PROPERTY(QString explanation READ explanation NOTIFY explanationChanged)

public:
    explicit FileComparison(QObject *parent = nullptr);

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

    /// Begins to compare this file of what is to be added with that of the skill.
    Q_INVOKABLE void compareAdded(const vornel::SkillAddition &addition, const QString &path);

    /// Begins to compare this file of a version with what it has become, or with what it was in the version
    /// before. Until then, what was shown stays.
    Q_INVOKABLE void compareVersion(const QString &entry, const QString &path);
    Q_INVOKABLE void compareVersions(const QString &former, const QString &entry, const QString &path);

    /// Shows nothing, whatever has been asked.
    Q_INVOKABLE void clear();

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

        bool operator==(const Result &) const = default;
    };

    /// Reads the bytes of a side; nothing where it has no such file.
    using Bytes = QFuture<std::optional<QByteArray>>;
    using Side = std::function<Bytes()>;

    /// Those of a file of the skill's folder or of a copy, of a version, or of a text.
    Side fileOf(std::optional<TargetKind> copy, const QString &path) const;
    Side fileOfVersion(const QString &entry, const QString &path) const;
    static Side bytesOf(const QString &text);

    void begin(Side before, Side after);
    void ask(Side before, Side after);
    void showFolder();
    static QCoro::Task<Result> compare(Bytes before, Bytes after);
    static Result difference(const QByteArray &before, const QByteArray &after);
    void show(Result result);

    AppModel *m_model = nullptr;
    QUuid m_skillID;
    Result m_result;
    LatestAnswer<Result> m_comparing;
};

} // namespace vornel

#pragma once

#include <VORNELApp/Lists/KeyedListModel.h>
#include <VORNELApp/Model/AppModel.h>
#include <VORNELApp/Model/LatestAnswer.h>

#include <QQmlParserStatus>

namespace vornel {

struct VersionRow
{
    QString id;
    HistoryEntry version;

    bool operator==(const VersionRow &) const = default;
};

/// The rows of versions, the newest first. What a row reads is made when it is shown.
class VersionRows : public KeyedListModel<VersionRow>
{
public:
    using KeyedListModel::KeyedListModel;

    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

private:
    enum Role {
        EntryRole = Qt::UserRole,
        DayRole,
        TimeRole,
        TitleRole,
        DescriptionRole,
        IsReplacedRole,
        IsCurrentRole
    };
};

/// The versions that are kept of a skill, and which of them the user has chosen.
class VersionList : public QObject, public QQmlParserStatus
{
    Q_OBJECT
    Q_INTERFACES(QQmlParserStatus)
    QML_ELEMENT
    Q_PROPERTY(vornel::AppModel *model MEMBER m_model REQUIRED)
    Q_PROPERTY(QAbstractItemModel *rows READ rows CONSTANT)
    Q_PROPERTY(QUuid skillID READ skillID WRITE setSkillID NOTIFY skillIDChanged)
    Q_PROPERTY(QString chosen READ chosen WRITE setChosen NOTIFY chosenChanged)
    Q_PROPERTY(QString chosenTitle READ chosenTitle NOTIFY shown)
    Q_PROPERTY(QString former READ former NOTIFY shown)
    Q_PROPERTY(bool isChosenCurrent READ isChosenCurrent NOTIFY shown)
    Q_PROPERTY(bool isChosenEqual READ isChosenEqual NOTIFY shown)
    Q_PROPERTY(QString explanation READ explanation NOTIFY shown)

public:
    explicit VersionList(QObject *parent = nullptr);

    QAbstractItemModel *rows() { return &m_rows; }

    /// The skill whose versions are listed; null for none.
    const QUuid &skillID() const { return m_skillID; }
    void setSkillID(const QUuid &id);

    /// The name of the version that is looked at; empty for none, and once it is no longer kept.
    const QString &chosen() const { return m_chosen; }
    void setChosen(const QString &entry);

    /// What the user reads of it, the name of the one before it, whether it is the present revision, and
    /// whether it holds the same, so that there is nothing to return to.
    QString chosenTitle() const;
    QString former() const { return nameAt(rowOf(m_chosen) + 1); }
    bool isChosenCurrent() const;
    bool isChosenEqual() const;

    /// Why there are no rows; empty where there are, or before it is known.
    QString explanation() const { return m_explanation; }

    /// The name of the version in a row; empty without one. And the row of a version; -1 without one.
    Q_INVOKABLE QString nameAt(int row) const { return m_rows.records().value(row).id; }
    Q_INVOKABLE int rowOf(const QString &entry) const;

    void classBegin() override {}
    void componentComplete() override;

Q_SIGNALS:
    void skillIDChanged();
    void chosenChanged();

    /// The versions, or the one that is chosen, are others now.
    void shown();

private:
    using Entries = QList<HistoryEntry>;

    void look();
    void show(const Answer<Entries> &answer);

    AppModel *m_model = nullptr;
    VersionRows m_rows;
    QUuid m_skillID;
    QString m_chosen;
    QString m_explanation;
    LatestAnswer<Answer<Entries>> m_looking;
};

} // namespace vornel

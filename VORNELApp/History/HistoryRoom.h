#pragma once

#include <VORNELApp/Model/AppModel.h>
#include <VORNELApp/Model/LatestAnswer.h>

#include <QQmlParserStatus>

namespace vornel {

/// How much all histories take, and how much of it the user would free: the versions that aren't among the
/// `keep` newest ones of their skill and are older than `days`.
class HistoryRoom : public QObject, public QQmlParserStatus
{
    Q_OBJECT
    Q_INTERFACES(QQmlParserStatus)
    QML_ELEMENT
    Q_PROPERTY(vornel::AppModel *model MEMBER m_model REQUIRED)
    Q_PROPERTY(QString keep MEMBER m_keep WRITE setKeep NOTIFY wished)
    Q_PROPERTY(QString days MEMBER m_days WRITE setDays NOTIFY wished)
    Q_PROPERTY(QString keepProblem READ keepProblem NOTIFY wished)
    Q_PROPERTY(QString daysProblem READ daysProblem NOTIFY wished)
    Q_PROPERTY(QString extentText READ extentText NOTIFY changed)
    Q_PROPERTY(QString problem READ problem NOTIFY changed)
    Q_PROPERTY(bool isRehearsing MEMBER m_isRehearsing WRITE setRehearsing NOTIFY changed)
    Q_PROPERTY(QString forecast READ forecast NOTIFY changed)
    Q_PROPERTY(QString question READ question NOTIFY changed)
    Q_PROPERTY(bool canPrune READ canPrune NOTIFY changed)

public:
    explicit HistoryRoom(QObject *parent = nullptr);

    /// What the user has typed: how many versions of each skill stay, and for how many days the others do.
    void setKeep(const QString &keep);
    void setDays(const QString &days);

    /// Why that is no number; empty where it is one.
    QString keepProblem() const { return problemOf(m_keep); }
    QString daysProblem() const { return problemOf(m_days); }

    /// "48 versions, 12,4 Mo"; empty where nothing is kept, or before it is known.
    QString extentText() const;

    /// Why that couldn't be found out, for the user: it is told then as it was. Empty otherwise.
    const QString &problem() const { return m_problem; }

    /// Whether what would go is worked out, now and whenever it may be something else.
    void setRehearsing(bool isRehearsing);

    /// What would go, as the user reads it; the question before it does; and whether there is anything.
    QString forecast() const;
    QString question() const;
    bool canPrune() const { return m_gone && m_gone->entries > 0; }

    /// Deletes what the rehearsal has named.
    Q_INVOKABLE void prune();

    void classBegin() override {}
    void componentComplete() override;

Q_SIGNALS:
    void wished();
    void changed();

private:
    using Extent = Answer<HistoryExtent>;

    static QString problemOf(const QString &number);
    void follow();
    void look();
    void forecastAnew();
    void rehearse();
    void showExtent(const Extent &answer);
    void showRehearsal(const Extent &answer);

    AppModel *m_model = nullptr;
    QString m_keep = QStringLiteral("50");
    QString m_days = QStringLiteral("90");
    HistoryExtent m_extent;
    QString m_problem;
    bool m_isRehearsing = false;
    std::optional<HistoryExtent> m_gone; ///< nothing while it isn't known
    QString m_rehearsalProblem;
    LatestAnswer<Extent> m_looking;
    LatestAnswer<Extent> m_rehearsing;
};

} // namespace vornel

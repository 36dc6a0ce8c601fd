#pragma once

#include <VORNELCore/Services/CopyRepairing.h>

#include <QCoro/QCoroTask>
#include <QHash>
#include <QObject>
#include <QSet>
#include <QtQml/qqmlregistration.h>

#include <functional>
#include <stop_token>

namespace vornel {

/// A change made to several skills: how far it is, and why it failed where it did.
class SkillBatch : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("belongs to the model")
    Q_PROPERTY(bool isRunning READ isRunning NOTIFY changed)
    Q_PROPERTY(bool isStopping READ isStopping NOTIFY changed)
    Q_PROPERTY(int count READ count NOTIFY changed)
    Q_PROPERTY(int doneCount READ doneCount NOTIFY changed)
    Q_PROPERTY(QString progressText READ progressText NOTIFY changed)

public:
    enum class Kind { synchronisation, restoration, deletion };
    Q_ENUM(Kind)

    /// The change of one skill. May throw, which doesn't keep the others from being changed.
    using Operation = std::function<QCoro::Task<>(QUuid)>;

    using QObject::QObject;

    /// Changes the skills in their order, one after another. Must not be called while it runs.
    QCoro::Task<> run(Kind kind, QList<SkillSummary> skills, Operation operation);

    /// Synchronises them in one operation. Must not be called while it runs.
    QCoro::Task<> synchronize(QList<SkillSummary> skills, CopyRepairing &service);

    /// Leaves the skills that are still waiting as they are.
    Q_INVOKABLE void stop();

    bool isRunning() const { return m_isRunning; }
    bool isStopping() const { return m_isRunning && m_stop.stop_requested(); }
    int count() const { return static_cast<int>(m_skills.size()); }
    int doneCount() const { return m_doneCount; }

    /// "Synchronisation 3 sur 12".
    QString progressText() const;

    /// What the last run achieved, in capitals; empty when it changed nothing.
    QString confirmation() const;

    /// Which skills the last run failed to change, or to change everywhere, and why; empty without any.
    QString failureMessage() const;

    /// Why the last run failed to change this skill; empty if it didn't.
    QString reason(const QUuid &id) const { return m_reasons.value(id); }

    /// Forgets the reasons of all other skills.
    void keepFailures(const QSet<QUuid> &ids);

Q_SIGNALS:
    void changed();
    void reasonsChanged();

private:
    struct Failure
    {
        QString name;
        QString reason;
    };

    void begin(Kind kind, const QList<SkillSummary> &skills);
    void advance(int done);
    void note(const SkillSummary &skill, const std::exception &error);
    void note(const SkillSummary &skill, const std::exception_ptr &failure);
    void end();
    QStringList told(const QList<Failure> &failures, bool isChanged) const;

    Kind m_kind = Kind::synchronisation;
    QList<SkillSummary> m_skills;
    int m_doneCount = 0;
    QList<Failure> m_failures;       ///< of the last run
    QList<Failure> m_incomplete;     ///< changed, though not in every assistant's folder
    QHash<QUuid, QString> m_reasons; ///< by skill, as long as they are shown
    bool m_isRunning = false;
    std::stop_source m_stop;
};

} // namespace vornel

#pragma once

#include <VORNELApp/Model/AppModel.h>

namespace vornel {

/// A look at the copies of several skills, one skill after another, before they are synchronised.
class CopySurvey : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(vornel::AppModel *model MEMBER m_model REQUIRED)
    Q_PROPERTY(bool isRunning READ isRunning NOTIFY isRunningChanged)
    Q_PROPERTY(int count READ count NOTIFY finished)
    Q_PROPERTY(int editedCopies READ editedCopies NOTIFY finished)
    Q_PROPERTY(int unexplainedCopies READ unexplainedCopies NOTIFY finished)
    Q_PROPERTY(bool sawEveryCopy READ sawEveryCopy NOTIFY finished)

public:
    using QObject::QObject;

    /// Looks at the copies of the active ones among these skills; `finished` follows, unless `forget` comes
    /// first. A look that is still running is forgotten.
    Q_INVOKABLE void begin(const QVariantList &ids);

    /// Looks at the same skills again.
    Q_INVOKABLE void repeat();

    Q_INVOKABLE void forget();

    bool isRunning() const { return m_isRunning; }

    /// How many skills it looked at, how many of their copies were edited, and of how many it is unknown why
    /// they differ.
    int count() const { return static_cast<int>(m_ids.size()); }
    int editedCopies() const { return m_editedCopies; }
    int unexplainedCopies() const { return m_unexplainedCopies; }

    /// Whether it could tell how each copy stands.
    bool sawEveryCopy() const { return m_sawEveryCopy; }

    /// Synchronises the skills that it looked at.
    Q_INVOKABLE void synchronize();

Q_SIGNALS:
    void isRunningChanged();
    void finished();

private:
    void run(const QSet<QUuid> &ids);
    void lookAtNext();
    void note(const QList<CopyInspection> &inspections);
    void setRunning(bool isRunning);

    AppModel *m_model = nullptr;
    QSet<QUuid> m_ids;
    QList<QUuid> m_waiting; ///< those that are still to be looked at
    int m_editedCopies = 0;
    int m_unexplainedCopies = 0;
    bool m_sawEveryCopy = true;
    bool m_isRunning = false;
    int m_request = 0; ///< grows with each look and each `forget`: an earlier look stops
};

} // namespace vornel

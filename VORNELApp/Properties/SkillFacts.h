#pragma once

#include <VORNELApp/Model/AppModel.h>
#include <VORNELApp/Model/LatestAnswer.h>

namespace vornel {

/// What the user reads of the selected skill beside what he can change.
class SkillFacts : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(vornel::AppModel *model READ model WRITE setModel NOTIFY changed REQUIRED)
    Q_PROPERTY(QString created READ created NOTIFY changed)
    Q_PROPERTY(QString updated READ updated NOTIFY changed)
    Q_PROPERTY(QString revision READ revision NOTIFY changed)
    Q_PROPERTY(QString size READ size NOTIFY changed)

public:
    explicit SkillFacts(QObject *parent = nullptr);

    AppModel *model() const { return m_model; }
    void setModel(AppModel *model);

    /// "22 novembre à 14:32".
    const QString &created() const { return m_created; }
    const QString &updated() const { return m_updated; }

    const QString &revision() const { return m_revision; }

    /// "1,4 ko"; empty until it has been measured, and where that failed.
    const QString &size() const { return m_size; }

Q_SIGNALS:
    void changed();

private:
    void look();

    AppModel *m_model = nullptr;
    QString m_created;
    QString m_updated;
    QString m_revision;
    QString m_size;
    LatestAnswer<Answer<qint64>> m_measuring;
};

} // namespace vornel

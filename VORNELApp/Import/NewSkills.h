#pragma once

#include <VORNELApp/Model/AppModel.h>

#include <QQmlParserStatus>

namespace vornel {

/// The skills that assistants have made since the last import, looked for whenever the library was read. Of a
/// library that is empty, nothing is told: it offers the import itself.
class NewSkills : public QObject, public QQmlParserStatus
{
    Q_OBJECT
    Q_INTERFACES(QQmlParserStatus)
    QML_ELEMENT
    Q_PROPERTY(vornel::AppModel *model MEMBER m_model REQUIRED)
    Q_PROPERTY(QString notice READ notice NOTIFY changed)

public:
    using QObject::QObject;

    /// "2 nouvelles compétences chez Claude"; empty without any.
    QString notice() const { return m_notice; }

    /// Tells of those that are told of now no more.
    Q_INVOKABLE void ignore();

    void classBegin() override {}
    void componentComplete() override;

Q_SIGNALS:
    void changed();

private:
    void look();
    void show(const QList<NewSkill> &skills);

    AppModel *m_model = nullptr;
    QList<NewSkill> m_skills;
    QString m_notice;
    int m_request = 0; ///< counts the questions: only the last answer is shown
};

} // namespace vornel

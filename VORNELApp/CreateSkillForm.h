#pragma once

#include "AppModel.h"

namespace vornel {

/// What the user types to create a skill. The identifier follows the name until it is typed itself.
class CreateSkillForm : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(vornel::AppModel *model MEMBER m_model NOTIFY modelChanged REQUIRED)
    Q_PROPERTY(QString displayName READ displayName WRITE setDisplayName NOTIFY changed)
    Q_PROPERTY(QString slug READ slug WRITE setSlug NOTIFY changed)
    Q_PROPERTY(QString summary READ summary WRITE setSummary NOTIFY changed)
    Q_PROPERTY(QString validationHint READ validationHint NOTIFY changed)
    Q_PROPERTY(bool isValid READ isValid NOTIFY changed)

public:
    using QObject::QObject;

    QString displayName() const { return m_request.displayName; }
    void setDisplayName(const QString &name);

    QString slug() const { return m_request.slug; }
    void setSlug(const QString &slug);

    QString summary() const { return m_request.summary; }
    void setSummary(const QString &summary);

    /// What is missing, or that nothing is.
    QString validationHint() const;

    bool isValid() const { return hasName() && hasValidSlug(); }

    /// Creates the skill; `created` follows unless the model shows an error.
    Q_INVOKABLE void submit();

    /// Empties every field.
    Q_INVOKABLE void reset();

Q_SIGNALS:
    void modelChanged();
    void changed();
    void created();

private:
    bool hasName() const { return !m_request.displayName.trimmed().isEmpty(); }
    bool hasValidSlug() const;
    static CreateSkillRequest emptyRequest();

    AppModel *m_model = nullptr;
    CreateSkillRequest m_request = emptyRequest();
    bool m_didEditSlug = false;
};

} // namespace vornel

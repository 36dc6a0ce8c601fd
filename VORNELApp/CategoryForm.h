#pragma once

#include "AppModel.h"

namespace vornel {

/// What the user gives to create a category.
class CategoryForm : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(vornel::AppModel *model MEMBER m_model NOTIFY modelChanged REQUIRED)
    Q_PROPERTY(QString name MEMBER m_name NOTIFY changed)
    Q_PROPERTY(QString colorHex MEMBER m_colorHex NOTIFY changed)
    Q_PROPERTY(bool isValid READ isValid NOTIFY changed)

public:
    using QObject::QObject;

    bool isValid() const { return !m_name.trimmed().isEmpty(); }

    /// Creates the category; `created` follows unless the model shows an error.
    Q_INVOKABLE void submit();

    /// Empties the name and goes back to the first colour.
    Q_INVOKABLE void reset();

Q_SIGNALS:
    void modelChanged();
    void changed();
    void created();

private:
    static QString firstColor() { return QStringLiteral("21D6D1"); }

    AppModel *m_model = nullptr;
    QString m_name;
    QString m_colorHex = firstColor();
};

} // namespace vornel

#pragma once

#include <VORNELApp/Model/EntryForm.h>

namespace vornel {

/// The identifier under which a copy that was set aside becomes a skill of its own.
class SetAsideForm : public vornel::EntryForm // in full, for the tools that read the types of QML
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString slug READ slug WRITE setSlug NOTIFY slugChanged)
    Q_PROPERTY(QString problem READ problem NOTIFY problemChanged)

public:
    explicit SetAsideForm(QObject *parent = nullptr);

    const QString &slug() const { return m_slug; }
    void setSlug(const QString &slug);

    /// What is wrong with the identifier, for the user; empty where nothing is known to be.
    QString problem() const;

    /// Begins with a copy's own slug.
    Q_INVOKABLE void begin(const QString &copy, const QString &slug);
    Q_INVOKABLE void submit();

Q_SIGNALS:
    void slugChanged();
    void problemChanged();

private:
    QString m_copy;
    QString m_slug;
};

} // namespace vornel

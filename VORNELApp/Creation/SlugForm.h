#pragma once

#include <VORNELApp/Model/EntryForm.h>

namespace vornel {

/// The identifier that a new skill is to have.
class SlugForm : public vornel::EntryForm // in full, for the tools that read the types of QML
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("a form tells what the skill is made of")
    Q_PROPERTY(QString slug READ slug WRITE setSlug NOTIFY slugChanged)
    Q_PROPERTY(QString problem READ problem NOTIFY problemChanged)

public:
    explicit SlugForm(QObject *parent = nullptr);

    const QString &slug() const { return m_slug; }
    void setSlug(const QString &slug);

    /// What is wrong with the identifier, for the user; empty where nothing is known to be.
    QString problem() const;

    /// Makes the skill.
    Q_INVOKABLE virtual void submit() = 0;

Q_SIGNALS:
    void slugChanged();
    void problemChanged();

protected:
    /// Begins with a suggestion.
    void beginWith(const QString &slug);

    /// Whether a skill of the library or of the trash has this identifier.
    bool isTaken(const QString &slug, Destination destination) const;

private:
    QString m_slug;
};

} // namespace vornel

#pragma once

#include <VORNELApp/Model/EntryForm.h>

namespace vornel {

/// What the user gives to create a category, or changes about one.
class CategoryForm : public vornel::EntryForm // by its full name, under which QML knows it
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString name READ name WRITE setName NOTIFY changed)
    Q_PROPERTY(QString colorHex READ colorHex WRITE setColorHex NOTIFY changed)
    Q_PROPERTY(vornel::SkillCategory original READ original NOTIFY changed)
    Q_PROPERTY(bool isNew READ isNew NOTIFY changed)
    Q_PROPERTY(QString nameProblem READ nameProblem NOTIFY changed)
    Q_PROPERTY(bool isValid READ isValid NOTIFY changed)
    Q_PROPERTY(bool isModified READ isModified NOTIFY changed)
    Q_PROPERTY(int skillCount READ skillCount NOTIFY changed)
    Q_PROPERTY(int longestName READ longestName CONSTANT)

public:
    explicit CategoryForm(QObject *parent = nullptr);

    QString name() const { return m_category.name; }
    void setName(const QString &name);

    /// Six upper-case hexadecimal digits.
    QString colorHex() const { return m_category.colorHex; }
    void setColorHex(const QString &colorHex);

    /// The category as it was when the form began with it; without an identifier when it is new.
    SkillCategory original() const { return m_original; }

    bool isNew() const { return m_original.id.isEmpty(); }

    /// Why the name can't be had: it is too long, or another category's; empty otherwise.
    QString nameProblem() const;

    bool isValid() const { return !m_category.name.trimmed().isEmpty() && nameProblem().isEmpty(); }

    /// Whether anything would be lost with the form.
    bool isModified() const { return m_category != m_original; }

    /// How many skills have the category that the form began with.
    int skillCount() const;

    /// The most characters of a name.
    static constexpr int longestName() { return SkillCategory::longestName; }

    /// Begins with a category that exists, or with a new one of this colour.
    Q_INVOKABLE void edit(const vornel::SkillCategory &category);
    Q_INVOKABLE void editNew(const QString &colorHex);

    /// Creates or updates the category.
    Q_INVOKABLE void submit();

    /// Deletes the category that the form began with.
    Q_INVOKABLE void remove();

Q_SIGNALS:
    void changed();

private:
    bool isNameTaken() const;

    SkillCategory m_original;
    SkillCategory m_category;
};

} // namespace vornel

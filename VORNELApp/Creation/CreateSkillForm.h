#pragma once

#include <VORNELApp/Model/EntryForm.h>

namespace vornel {

/// What the user types to create a skill. The identifier follows the name unless one is typed.
class CreateSkillForm : public vornel::EntryForm // by its full name, under which QML knows it
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString displayName READ displayName WRITE setDisplayName NOTIFY changed)
    Q_PROPERTY(QString slug READ slug WRITE setSlug NOTIFY changed)
    Q_PROPERTY(QString summary READ summary WRITE setSummary NOTIFY changed)
    Q_PROPERTY(QString tags READ tags WRITE setTags NOTIFY changed)
    Q_PROPERTY(QString category READ category WRITE setCategory NOTIFY changed)
    Q_PROPERTY(vornel::Maturity maturity READ maturity WRITE setMaturity NOTIFY changed)
    Q_PROPERTY(QStringList maturityTexts READ maturityTexts CONSTANT)
    Q_PROPERTY(bool hasName READ hasName NOTIFY changed)
    Q_PROPERTY(QString slugProblem READ slugProblem NOTIFY changed)
    Q_PROPERTY(QString validationHint READ validationHint NOTIFY changed)
    Q_PROPERTY(bool isValid READ isValid NOTIFY changed)
    Q_PROPERTY(bool isModified READ isModified NOTIFY changed)
    Q_PROPERTY(bool isSlugTaken READ isSlugTaken NOTIFY changed)

public:
    explicit CreateSkillForm(QObject *parent = nullptr);

    QString displayName() const { return m_request.displayName; }
    void setDisplayName(const QString &name);

    QString slug() const { return m_request.slug; }
    void setSlug(const QString &slug);

    QString summary() const { return m_request.summary; }
    void setSummary(const QString &summary);

    /// The keywords, with commas between them.
    QString tags() const { return m_tags; }
    void setTags(const QString &tags);

    /// The identifier of the category.
    QString category() const { return m_request.category; }
    void setCategory(const QString &id);

    Maturity maturity() const { return m_request.maturity; }
    void setMaturity(Maturity maturity);

    /// What the user reads for each maturity, in their order.
    static QStringList maturityTexts();

    bool hasName() const;

    /// What is wrong with the identifier; empty where nothing is, and as long as neither it nor a name is
    /// typed.
    QString slugProblem() const;

    /// What is missing, or that nothing is.
    QString validationHint() const;

    bool isValid() const { return hasName() && hasValidSlug(); }

    /// Whether anything would be lost with the form.
    bool isModified() const;

    /// Whether another skill has the identifier: one of the library or the trash, or one for which it was
    /// refused.
    bool isSlugTaken() const;

    /// Creates the skill.
    Q_INVOKABLE void submit();

    /// Empties every field, and proposes the category that filters the library.
    Q_INVOKABLE void reset();

Q_SIGNALS:
    void changed();

private:
    bool hasValidSlug() const;
    void takeSlug(const QString &slug);

    CreateSkillRequest m_request;
    CreateSkillRequest m_empty; ///< what it was when it began
    QString m_tags;
    bool m_didEditSlug = false;
};

} // namespace vornel

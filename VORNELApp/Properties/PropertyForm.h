#pragma once

#include <VORNELApp/Model/EntryForm.h>

namespace vornel {

/// What the user changes in the properties of the selected skill, for as long as it is selected. When the
/// skill is read again, his changes stay, and what he hasn't changed follows.
class PropertyForm : public vornel::EntryForm // by its full name, under which QML knows it
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString displayName READ displayName WRITE setDisplayName NOTIFY changed)
    Q_PROPERTY(QString summary READ summary WRITE setSummary NOTIFY changed)
    Q_PROPERTY(QStringList tags READ tags NOTIFY changed)
    Q_PROPERTY(QString typedTag READ typedTag WRITE setTypedTag NOTIFY changed)
    Q_PROPERTY(QString category READ category WRITE setCategory NOTIFY changed)
    Q_PROPERTY(vornel::Maturity maturity READ maturity WRITE setMaturity NOTIFY changed)
    Q_PROPERTY(QString slug READ slug WRITE setSlug NOTIFY changed)
    Q_PROPERTY(QStringList maturityTexts READ maturityTexts CONSTANT)
    Q_PROPERTY(QString nameProblem READ nameProblem NOTIFY changed)
    Q_PROPERTY(QString slugProblem READ slugProblem NOTIFY changed)
    Q_PROPERTY(QString newSlug READ newSlug NOTIFY changed)
    Q_PROPERTY(QString overtaken READ overtaken NOTIFY changed)
    Q_PROPERTY(QString textNote READ textNote NOTIFY changed)
    Q_PROPERTY(bool isOutdated READ isOutdated NOTIFY changed)
    Q_PROPERTY(bool isValid READ isValid NOTIFY changed)
    Q_PROPERTY(bool isModified READ isModified NOTIFY changed)

public:
    explicit PropertyForm(QObject *parent = nullptr);

    const QString &displayName() const { return m_typed.displayName; }
    void setDisplayName(const QString &name) { set(m_typed.displayName, name); }

    const QString &summary() const { return m_typed.summary; }
    void setSummary(const QString &summary) { set(m_typed.summary, summary); }

    const QStringList &tags() const { return m_typed.tags; }
    Q_INVOKABLE void addTags(const QString &tags);
    Q_INVOKABLE void removeTag(const QString &tag);

    /// A tag that isn't added yet; it counts as one when the properties are saved.
    const QString &typedTag() const { return m_typedTag; }
    void setTypedTag(const QString &tag) { set(m_typedTag, tag); }

    /// The identifier of the category.
    const QString &category() const { return m_typed.category; }
    void setCategory(const QString &id) { set(m_typed.category, id); }

    Maturity maturity() const { return m_typed.maturity; }
    void setMaturity(Maturity maturity) { set(m_typed.maturity, maturity); }

    const QString &slug() const { return m_typed.slug; }
    void setSlug(const QString &slug) { set(m_typed.slug, slug); }

    /// What the user reads for each maturity, in their order.
    static QStringList maturityTexts();

    /// What is wrong with what was typed; empty where nothing is.
    QString nameProblem() const;
    QString slugProblem() const;

    /// The identifier, where it is another than the skill's and may be had as far as is known; else empty.
    QString newSlug() const;

    /// Which of the properties that the user has changed others have changed, too: "nom, mots-clés".
    QString overtaken() const { return m_overtaken.join(QStringLiteral(", ")); }

    /// Whether they weren't saved because the skill had moved on.
    bool isOutdated() const;

    bool isValid() const { return nameProblem().isEmpty() && slugProblem().isEmpty(); }

    /// Whether anything would be lost with the form.
    bool isModified() const { return wanted() != m_read; }

    /// Takes the name and the description that the head of the skill's saved text gives, as if they had been
    /// typed; and what came of it, where that shows nowhere else.
    Q_INVOKABLE void takeFromText();
    const QString &textNote() const { return m_textNote; }

    /// Saves what was changed as one revision, unless nothing is to be saved, or can be now.
    Q_INVOKABLE void submit();

    /// Goes back to the properties that the skill has.
    Q_INVOKABLE void reset();

Q_SIGNALS:
    void changed();

private:
    template <typename T>
    void set(T &property, const T &value)
    {
        property = value;
        m_textNote.clear();
        forgetRefusal();
        Q_EMIT changed();
    }

    template <typename T>
    void takeOver(T SkillProperties::*property, const SkillProperties &read, const QString &name);

    using Reviewed = Answer<QList<SkillProperties>>;

    void listen();
    void takeReviewed(const Reviewed &answer);
    void follow();
    void followAgain(const SkillProperties &read);
    SkillProperties wanted() const;

    QUuid m_id;
    qint64 m_revision = 0; ///< that was read
    SkillProperties m_read;
    SkillProperties m_typed;
    QString m_typedTag;
    QStringList m_overtaken;
    QString m_textNote;
    LatestAnswer<Reviewed> m_reading; ///< of the text
};

} // namespace vornel

#pragma once

#include <VORNELApp/Model/EntryForm.h>

namespace vornel {

/// What the user changes in the properties of several skills at once. What he doesn't choose stays as it is.
class SelectionPropertyForm : public vornel::EntryForm // by its full name, under which QML knows it
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(int count READ count NOTIFY changed)
    Q_PROPERTY(QString category READ category WRITE setCategory NOTIFY changed)
    Q_PROPERTY(int maturityChoice READ maturityChoice WRITE setMaturityChoice NOTIFY changed)
    Q_PROPERTY(QStringList maturityTexts READ maturityTexts CONSTANT)
    Q_PROPERTY(QStringList addedTags READ addedTags NOTIFY changed)
    Q_PROPERTY(QString typedTag READ typedTag WRITE setTypedTag NOTIFY changed)
    Q_PROPERTY(QStringList presentTags READ presentTags NOTIFY changed)
    Q_PROPERTY(QStringList removedTags READ removedTags NOTIFY changed)
    Q_PROPERTY(bool isFromText READ isFromText WRITE setFromText NOTIFY changed)
    Q_PROPERTY(QString textChanges READ textChanges NOTIFY changed)
    Q_PROPERTY(QString textFailure READ textFailure NOTIFY changed)
    Q_PROPERTY(bool isModified READ isModified NOTIFY changed)

public:
    explicit SelectionPropertyForm(QObject *parent = nullptr);

    /// How many skills it is about.
    int count() const { return static_cast<int>(m_ids.size()); }

    /// The identifier of the category; empty where it stays.
    QString category() const { return m_change.category.value_or(QString()); }
    void setCategory(const QString &id);

    /// Which of the texts is chosen, the first one where the maturity stays.
    int maturityChoice() const;
    void setMaturityChoice(int choice);
    static QStringList maturityTexts();

    const QStringList &addedTags() const { return m_change.addedTags; }
    Q_INVOKABLE void addTags(const QString &tags);
    Q_INVOKABLE void dropTag(const QString &tag);

    /// A tag that isn't added yet; it counts as one when the form is submitted.
    const QString &typedTag() const { return m_typedTag; }
    void setTypedTag(const QString &tag);

    /// The tags that any of the skills has, and those of them that all are to lose.
    const QStringList &presentTags() const { return m_presentTags; }
    const QStringList &removedTags() const { return m_change.removedTags; }
    Q_INVOKABLE void toggleRemoved(const QString &tag);

    /// Whether the names and descriptions are taken from the heads of the texts, and what that would change:
    /// a line for each skill.
    bool isFromText() const { return m_change.isFromText; }
    void setFromText(bool isFromText);
    QString textChanges() const { return m_textChanges.join(u'\n'); }

    /// Why that isn't known; empty where it is.
    const QString &textFailure() const { return m_textFailure; }

    bool isModified() const { return change() != PropertyChange(); }

    /// Begins with these skills, and nothing to change.
    Q_INVOKABLE void begin(const QVariantList &ids);
    Q_INVOKABLE void submit();

Q_SIGNALS:
    void changed();

private:
    using Reviewed = Answer<QList<SkillProperties>>;

    PropertyChange change() const;
    void showTextChanges(const Reviewed &answer);

    QList<QUuid> m_ids;
    PropertyChange m_change;
    QString m_typedTag;
    QStringList m_presentTags;
    QStringList m_textChanges;
    QString m_textFailure;
    LatestAnswer<Reviewed> m_reading; ///< of the texts
};

} // namespace vornel

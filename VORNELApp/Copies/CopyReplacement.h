#pragma once

#include "SkillCopies.h"

#include <VORNELApp/Model/Operations.h>

#include <optional>

namespace vornel {

/// Stands before an operation that replaces the copies of a skill: looks at them, and asks where one holds
/// what would be lost from its place.
class CopyReplacement : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("belongs to the model")
    Q_PROPERTY(vornel::SkillCopies *copies READ copies CONSTANT)
    Q_PROPERTY(Purpose purpose READ purpose NOTIFY changed)
    Q_PROPERTY(bool isAsking READ isAsking NOTIFY changed)
    Q_PROPERTY(QString newText READ newText NOTIFY changed)
    Q_PROPERTY(QString verb READ verb NOTIFY changed)
    Q_PROPERTY(QString newVersion READ newVersion NOTIFY changed)

public:
    /// What replaces the copies, last or next: the skill as it is saved, as it is, as it was once, or with
    /// other files.
    enum Purpose { Saving, Synchronising, Returning, Changing };
    Q_ENUM(Purpose)

    CopyReplacement(CopyInspecting &inspector, const Operations &operations);

    SkillCopies *copies() { return &m_copies; }
    Purpose purpose() const { return m_purpose; }

    /// Whether the copies are looked at first.
    bool isLooking() const { return m_step == Step::Looking || m_step == Step::Opening; }

    /// Whether the user is asked.
    bool isAsking() const { return m_step == Step::Asking; }

    /// What "SKILL.md" will be where it is saved.
    QString newText() const { return m_newText; }

    /// What the user is asked to agree to: "Enregistrer".
    QString verb() const { return m_words.verb; }

    /// What takes the place of the copies: "Votre version".
    QString newVersion() const { return m_words.newVersion; }

    /// Looks at the copies, and asks if need be; `agreed` or `declined` follows. A save or a
    /// return leaves a copy alone that can't be looked at; a synchronisation would only fail with it, so that
    /// it is shown first.
    void save(const QString &text);
    void synchronize();
    void bringBack(const QString &verb, const QString &newVersion);
    void change(const QString &verb);

    /// The same for a skill of a list.
    Q_INVOKABLE void synchronize(const QUuid &id);

    /// Shows the copies in any case, and offers to synchronise them.
    Q_INVOKABLE void show();

    /// Looks at the copies of a skill of a list, and shows them if there is anything to decide.
    Q_INVOKABLE void show(const QUuid &id);

    /// Ends the look or the question: the copies may be replaced; or not, also because the user has left.
    Q_INVOKABLE void agree();
    Q_INVOKABLE void decline();

Q_SIGNALS:
    void changed();
    void agreed(vornel::CopyReplacement::Purpose purpose);
    void declined();

private:
    enum class Step { Idle, Looking, Opening, Asking }; // after `Opening`, nothing is done unasked

    /// How the user reads what is asked.
    struct Words
    {
        QString verb = {};
        QString newVersion = {};
    };

    void begin(Purpose purpose, const Words &words, Step step, const QString &newText = {});
    void beginSynchronizing(Step step);
    void judge();
    void closeSettled();
    void setStep(Step step);

    const Operations &m_operations;
    SkillCopies m_copies;
    Step m_step = Step::Idle;
    Purpose m_purpose = Synchronising;
    Words m_words;
    QString m_newText;
};

} // namespace vornel

#pragma once

#include "DraftKeeper.h"

#include <VORNELApp/Model/AppModel.h>
#include <VORNELApp/Text/FaithfulText.h>

#include <QPointer>
#include <QQmlParserStatus>
#include <QQuickTextDocument>
#include <QTimer>

#include <optional>

namespace vornel {

/// The text of the selected skill while it is edited in `document`. It begins anew with each other skill;
/// when the same skill is read again, unsaved edits stay. While there are any, the model's departure is
/// guarded, and a draft of them is kept, which is taken up when the skill is opened the next time.
class SkillDraft : public QObject, public QQmlParserStatus
{
    Q_OBJECT
    Q_INTERFACES(QQmlParserStatus)
    QML_ELEMENT
    Q_PROPERTY(vornel::AppModel *model MEMBER m_model REQUIRED)
    Q_PROPERTY(QQuickTextDocument *document MEMBER m_document REQUIRED)
    Q_PROPERTY(bool isModified READ isModified NOTIFY isModifiedChanged)
    Q_PROPERTY(bool isSaved READ isSaved NOTIFY isSavedChanged)
    Q_PROPERTY(int characterCount READ characterCount NOTIFY characterCountChanged)
    Q_PROPERTY(Standing standing READ standing NOTIFY standingChanged)
    Q_PROPERTY(QString foundMoment READ foundMoment NOTIFY foundMomentChanged)
    Q_PROPERTY(QString keepingFailure READ keepingFailure NOTIFY keepingFailureChanged)
    Q_PROPERTY(QString lookFailure READ lookFailure NOTIFY begun)
    Q_PROPERTY(bool isUnderWay READ isUnderWay NOTIFY isUnderWayChanged)

public:
    /// Whether the skill is still what was opened: `Stale` when it has moved on, `Gone` when it is no longer
    /// in the library.
    enum Standing { Current, Stale, Gone };
    Q_ENUM(Standing)

    explicit SkillDraft(QObject *parent = nullptr);
    ~SkillDraft() override;
    Q_DISABLE_COPY_MOVE(SkillDraft)

    /// Whether there are edits.
    bool isModified() const { return m_isModified; }

    /// Whether the text is what the skill holds: neither edited nor left behind by a skill that has moved on
    /// or gone.
    bool isSaved() const { return !m_isModified && m_standing == Current; }

    /// As a reader counts them.
    int characterCount() const { return m_characterCount; }

    Standing standing() const { return m_standing; }

    /// When the unsaved text was typed that has been found and taken up, "22 novembre à 14:32"; empty without
    /// one, and once the user has decided what becomes of it.
    QString foundMoment() const { return m_foundMoment; }

    /// Why the edits aren't kept until they are saved, as the user reads it; empty while they are.
    QString keepingFailure() const { return m_keeper ? m_keeper->failure() : QString(); }

    /// Why it isn't known whether an unsaved text of the skill is kept, as the user reads it; empty
    /// otherwise.
    QString lookFailure() const { return m_lookFailure; }

    /// Whether the text is just compared with the disk or saved.
    bool isUnderWay() const { return m_isUnderWay; }

    /// The text as it would be saved.
    Q_INVOKABLE QString text() const { return m_text->text(); }

    /// Goes on with the text that was found.
    Q_INVOKABLE void keepFound() { setFoundMoment({}); }

    /// Runs `action` if the skill is still what was opened; otherwise `saveFailed` follows.
    Q_INVOKABLE void check(const QJSValue &action);

    /// Saves the text, unless the skill isn't what was opened; `saved` or `saveFailed` follows.
    Q_INVOKABLE void save();

    /// Takes the skill as it is on the disk. The edits can be brought back by undoing.
    Q_INVOKABLE void reload();

    /// Lets the edits stand over the skill as it is on the disk; `overruled` follows, after which a save
    /// replaces that text.
    Q_INVOKABLE void overrule();

    /// Goes back to the saved text. The edits can be brought back by undoing.
    Q_INVOKABLE void discard();

    /// Puts the whole text on the clipboard.
    Q_INVOKABLE void copy() const;

    void classBegin() override {}
    void componentComplete() override;

Q_SIGNALS:
    /// The text of another skill is shown.
    void begun();

    void isModifiedChanged();
    void isSavedChanged();
    void characterCountChanged();
    void standingChanged();
    void foundMomentChanged();
    void keepingFailureChanged();
    void isUnderWayChanged();
    void overruled();
    void saved();
    void saveFailed();

private:
    static QCoro::Task<> saveText(QPointer<SkillDraft> draft, AppModel *model, QString text);
    static QCoro::Task<> checkText(QPointer<SkillDraft> draft, AppModel *model, QJSValue action);
    static QCoro::Task<bool> isUnchanged(QPointer<SkillDraft> draft, AppModel *model);
    static QCoro::Task<> reloadText(QPointer<SkillDraft> draft, AppModel *model);
    static QCoro::Task<> overruleText(QPointer<SkillDraft> draft, AppModel *model);
    bool isOpen(const QUuid &id) const;
    void conclude(const Outcome &outcome);
    void followFailure(const Outcome &outcome);
    void followRefusal();
    void followKeeping();
    UnsavedText unsavedText(const QString &text) const;
    void followSkill();
    void begin(const SkillDetail &skill);
    void takeUpFoundDraft();
    void take(const QString &text);
    void adopt(const QString &text);
    void followLibrary();
    void measure();
    void count();
    void setModified(bool isModified);
    void settle();
    void setStanding(Standing standing);
    void setFoundMoment(const QString &moment);
    void setUnderWay(bool isUnderWay);

    AppModel *m_model = nullptr;
    QQuickTextDocument *m_document = nullptr;
    std::optional<FaithfulText> m_text;
    QUuid m_skillID;
    QString m_savedText;     ///< what the skill holds, as far as is known here; the edits began with it
    QByteArray m_knownBytes; ///< that a save may replace; the saved text's, unless that isn't one
    QString m_otherBase;     ///< unless they were found, and began with the text of this digest
    std::optional<QString> m_sentText; ///< what is being saved, until the skill is known to hold it
    QString m_refusal;                 ///< what the model says of a text that the workspace refused
    QString m_refusedText;             ///< that text
    QString m_foundMoment;
    QString m_lookFailure;
    std::optional<DraftKeeper> m_keeper;
    bool m_isUnderWay = false;
    bool m_isModified = false;
    int m_characterCount = 0;
    QTimer m_counting; ///< as soon as nothing else is to be done: the whole text is counted
    Standing m_standing = Current;
};

} // namespace vornel

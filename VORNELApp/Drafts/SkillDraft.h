#pragma once

#include "DraftKeeper.h"
#include "FileDrafts.h"
#include "FoundDraft.h"

#include <VORNELApp/Text/FaithfulText.h>
#include <VORNELCore/Records/WorkspaceModels.h>

#include <QTextDocument>
#include <QTimer>
#include <QtQml/qqmlregistration.h>

#include <optional>

namespace vornel {

/// The text of a skill while it is edited in a document, and what is typed in its other files. When the skill
/// is read again, unsaved edits stay; a draft of them is kept, which is taken up when the skill is opened the
/// next time.
class SkillDraft : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("belongs to the open skill")
    Q_PROPERTY(QString text READ text STORED false NOTIFY edited)
    Q_PROPERTY(bool isModified READ isModified NOTIFY changed)
    Q_PROPERTY(bool isTextModified READ isTextModified NOTIFY changed)
    Q_PROPERTY(vornel::FileDrafts *files READ files CONSTANT)
    Q_PROPERTY(bool isSaved READ isSaved NOTIFY changed)
    Q_PROPERTY(Standing standing READ standing NOTIFY changed)
    Q_PROPERTY(QString foundMoment READ foundMoment NOTIFY changed)
    Q_PROPERTY(QString lookFailure READ lookFailure NOTIFY changed)
    Q_PROPERTY(int characterCount READ characterCount NOTIFY characterCountChanged)
    Q_PROPERTY(QString keepingFailure READ keepingFailure NOTIFY keepingFailureChanged)

public:
    /// Whether the skill is still what was opened: `Stale` when it has moved on, `Gone` when it is no longer
    /// in the library.
    enum Standing { Current, Stale, Gone };
    Q_ENUM(Standing)

    explicit SkillDraft(DraftKeeping &drafts);

    /// Edits in this document from now on, until it is gone.
    void attach(QTextDocument *document);
    bool isAttached() const { return m_text.has_value(); }

    /// Shows a skill that was opened, with what was found of its unsaved text.
    void begin(const SkillDetail &skill, const FoundDraft &found);

    /// Takes over the skill as it was read again. Where its text has changed elsewhere, edits stay, and can't
    /// be saved over it.
    void follow(const SkillDetail &skill);

    /// Whether the skill, as it was last read, is still in the library.
    void followPresence(bool isPresent, const SkillDetail &skill);

    /// What is on the disk is not the text that was opened, whatever it is.
    void setStale() { setStanding(Stale); }
    void setGone() { setStanding(Gone); }

    /// Keeps nothing more, as the skill is no longer shown.
    void stopKeeping();

    /// This text is being saved; and how that ended.
    void beginSaving(const QString &text);
    void endSaving(bool isSaved);

    /// Shows the text that the skill holds, as an edit.
    void take(const QString &text);

    /// From now on, this is what the skill holds, and those the bytes that a save may replace.
    void adopt(const QString &text) { adopt(text, text.toUtf8()); }
    void adopt(const QString &text, const QByteArray &bytes);

    /// Whether there are edits: of any file, or of the text.
    bool isModified() const { return m_isTextModified || !m_files.isEmpty(); }
    bool isTextModified() const { return m_isTextModified; }

    /// The edits of the other files.
    FileDrafts *files() { return &m_files; }

    /// Whether all texts are what the skill holds: neither edited nor left behind by a skill that has moved
    /// on or gone.
    bool isSaved() const { return !isModified() && m_standing == Current; }

    /// The text as it would be saved; and whether it is another than this one.
    QString text() const { return m_text ? m_text->text() : QString(); }
    bool differsFrom(const QString &text) const { return m_text && m_text->differsFrom(text); }

    /// What would be lost without being saved; nothing where there are no edits.
    std::optional<UnsavedText> edits() const;

    /// What "SKILL.md" held when it was last looked at.
    const QByteArray &knownBytes() const { return m_knownBytes; }

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

    /// Keeps the edits before it returns, for up to five seconds.
    void keepNow();

    /// Goes on with the text that was found.
    Q_INVOKABLE void keepFound() { setFoundMoment({}); }

    /// Goes back to the saved texts. The edits can be brought back by undoing in the documents.
    Q_INVOKABLE void discard();

    /// Puts the whole text on the clipboard.
    Q_INVOKABLE void copy() const;

Q_SIGNALS:
    /// The text of another skill is shown.
    void begun();

    /// The text was edited, or is what it was once more.
    void edited();

    void changed();
    void characterCountChanged();
    void keepingFailureChanged();

private:
    void detach();
    bool isTextSaved() const { return !m_isTextModified && m_standing == Current; }
    bool isEditOfText(const KeptDraft &draft) const;
    UnsavedText unsavedText(const QString &text) const;
    void takeUp(const FoundDraft &found);
    void measure();
    void count();
    void followFiles();
    void keep();
    void setTextModified(bool isModified);
    void settle();
    void setStanding(Standing standing);
    void setFoundMoment(const QString &moment);

    DraftKeeping &m_drafts;
    QTextDocument *m_document = nullptr;
    std::optional<FaithfulText> m_text; ///< none without a document
    std::optional<DraftKeeper> m_keeper;
    QUuid m_skillID;
    QString m_diskText;      ///< of the skill as it was last read
    QString m_savedText;     ///< what the skill holds, as far as is known here
    QByteArray m_knownBytes; ///< that a save may replace; the saved text's, unless that isn't one
    QString m_otherBase;     ///< digest of the text that recovered edits began with; empty for the saved one
    std::optional<QString> m_sentText; ///< what is being saved, until the skill is known to hold it
    bool m_isSaving = false;
    QString m_foundMoment;
    QString m_lookFailure;
    bool m_isTextModified = false;
    FileDrafts m_files;
    int m_characterCount = 0;
    QTimer m_counting; ///< as soon as nothing else is to be done: the whole text is counted
    Standing m_standing = Current;
};

} // namespace vornel

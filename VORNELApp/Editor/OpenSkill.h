#pragma once

#include "FileChanges.h"

#include <VORNELApp/Drafts/SkillDraft.h>
#include <VORNELApp/Leaving/Departure.h>
#include <VORNELApp/Model/LatestAnswer.h>
#include <VORNELApp/Model/Library.h>
#include <VORNELApp/Model/SelectedSkill.h>

#include <QQuickTextDocument>

namespace vornel {

/// The skill that is edited: its text, its copies, and what is under way with them. The screens show its
/// state and call its verbs; what is under way ends with `state`, with `refused` or with the model's error.
class OpenSkill : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("belongs to the model")
    Q_PROPERTY(State state READ state NOTIFY stateChanged)
    Q_PROPERTY(vornel::SkillDraft *draft READ draft CONSTANT)
    Q_PROPERTY(vornel::CopyReplacement *replacement READ replacement CONSTANT)
    Q_PROPERTY(vornel::FileChanges *files READ files CONSTANT)
    Q_PROPERTY(bool isEditedByHand READ isEditedByHand NOTIFY isEditedByHandChanged)

public:
    /// How the skill stands. Where several hold, the later one counts; what it hides, the draft tells.
    enum State {
        Closed,          ///< nothing is edited
        Clean,           ///< the text is the saved one
        Modified,        ///< there are edits
        Stale,           ///< the skill has moved on, and the text was not saved over it
        Gone,            ///< the skill is no longer in the library
        Saving,          ///< the text is compared with the disk and the copies, or saved
        AskingToReplace, ///< the user is asked whether copies may be replaced that hold something else
        Leaving          ///< the user is asked what becomes of the edits before he leaves them
    };
    Q_ENUM(State)

    OpenSkill(std::shared_ptr<WindowServicing> service, DraftKeeping &drafts, Operations &operations,
              Library &library, SelectedSkill &selected, Departure &departure);

    State state() const;
    SkillDraft *draft() { return &m_draft; }
    CopyReplacement *replacement() { return &m_replacement; }

    /// What changes which files the skill has.
    FileChanges *files() { return &m_files; }

    /// Whether the skill's folder holds what was written past VORNEL.
    bool isEditedByHand() const { return m_isEditedByHand; }

    /// Edits the text in this document until it is gone.
    Q_INVOKABLE void edit(QQuickTextDocument *document) { edit(document->textDocument()); }
    void edit(QTextDocument *document);

    /// Saves the texts, once it is known that it replaces no text and no copy that the user hasn't seen, and
    /// then leaves where that was asked for.
    Q_INVOKABLE void save();

    /// Synchronises the copies, once the user has agreed where one has edits of its own.
    Q_INVOKABLE void synchronize();

    /// Takes the skill as it is on the disk. The edits can be brought back by undoing.
    Q_INVOKABLE void reload();

    /// Lets the edits stand over the skill as it is on the disk, and saves them.
    Q_INVOKABLE void overrule();

    /// Leaves without the edits, which undoing would bring back; or stays with them.
    Q_INVOKABLE void discardAndLeave();
    Q_INVOKABLE void stay();

    /// Saves a text, and the edits of the other files, as the next revision of the skill, or synchronises its
    /// copies, without a question.
    QCoro::Task<Outcome> write(QString skillMD);
    QCoro::Task<Outcome> installCopies();

Q_SIGNALS:
    void stateChanged();
    void isEditedByHandChanged();

    /// The text was not saved, because the skill is no longer what was opened.
    void refused();

    /// The texts were not saved, because this file is no longer what the edits of it began with.
    void fileRefused(const QString &path);

private:
    void begin();
    void followDetail();
    void followDraft();
    void followEdits();
    void followReplacement(CopyReplacement::Purpose purpose);
    void followDeparture();
    void followKeeping();
    QCoro::Task<> refresh();
    void lookAround();

    QCoro::Task<> checkAndSave();
    QCoro::Task<> checkAndWrite();
    QCoro::Task<bool> isUnchanged();
    QCoro::Task<bool> isTextUnchanged();
    QCoro::Task<bool> areFilesUnchanged();
    QFuture<SkillDetail> saved(const SkillManifest &skill, const QString &skillMD);
    QCoro::Task<std::optional<QByteArray>> readText();
    QCoro::Task<std::optional<QByteArray>> readFile(QString path);
    void conclude(const QString &text, const Outcome &outcome);
    void refuse();

    QCoro::Task<> reloadText();
    QCoro::Task<> overruleText();
    QCoro::Task<> takeOverRevision();

    bool isEditing(const QUuid &id) const;
    void followFailure(const Outcome &outcome);
    void setEditedByHand(bool isEdited);
    void setUnderWay(bool isUnderWay);
    void setAskingToLeave(bool isAsking);

    const std::shared_ptr<WindowServicing> m_service;
    Operations &m_operations;
    Library &m_library;
    SelectedSkill &m_selected;
    Departure &m_departure;
    SkillDraft m_draft;
    CopyReplacement m_replacement;
    FileChanges m_files;
    QUuid m_id; ///< of the skill whose text is edited
    bool m_isEditedByHand = false;
    LatestAnswer<Answer<QSet<QUuid>>> m_lookingForHandEdits;
    bool m_isUnderWay = false;
    bool m_isAskingToLeave = false;
    bool m_isFresh = false; ///< whether an operation that still runs has returned the skill
    Outcome m_refusal;      ///< why the workspace has refused to save a text
    QString m_refusedText;
};

} // namespace vornel

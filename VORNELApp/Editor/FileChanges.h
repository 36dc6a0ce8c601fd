#pragma once

#include "DroppedFiles.h"

#include <VORNELApp/Copies/CopyReplacement.h>
#include <VORNELApp/Drafts/FileDrafts.h>
#include <VORNELApp/Model/LatestAnswer.h>
#include <VORNELApp/Model/Library.h>
#include <VORNELApp/Model/SelectedSkill.h>

#include <QUrl>

namespace vornel {

/// Changes which files the open skill has; each change is a revision. Texts that aren't saved stay with their
/// files. Paths are below the skill's folder. What fails ends with the model's error.
class FileChanges : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("belongs to the open skill")
    Q_PROPERTY(QStringList emptyFolders READ emptyFolders NOTIFY emptyFoldersChanged)

public:
    FileChanges(std::shared_ptr<WindowServicing> service, Operations &operations, Library &library,
                SelectedSkill &selected, CopyReplacement &replacement, FileDrafts &drafts);

    /// The folders that hold no file, by path.
    const QStringList &emptyFolders() const { return m_emptyFolders; }

    /// Why a file or folder can't have this path, a new one or the one that is moved from `former`, as the
    /// user reads it; empty where nothing is known to be wrong.
    Q_INVOKABLE QString problem(const QString &path, bool isFolder, const QString &former = {}) const;

    /// Begins a change, once the user has agreed where it replaces copies with edits of their own.
    Q_INVOKABLE void createFile(const QString &path);
    Q_INVOKABLE void createFolder(const QString &path);
    Q_INVOKABLE void move(const QString &from, const QString &to);
    Q_INVOKABLE void remove(const QString &path);

    /// Reads files and folders of this machine, to copy them into a folder of the skill, which is empty for
    /// the skill's own: `replacementAsked` follows where some stand there, and then `add` copies them.
    Q_INVOKABLE void bring(const QList<QUrl> &urls, const QString &folder);
    Q_INVOKABLE void add();

Q_SIGNALS:
    void emptyFoldersChanged();

    /// This file or folder is there now, or is no longer, and what was shown of it stands elsewhere.
    void created(const QString &path);
    void moved(const QString &from, const QString &to);
    void removed(const QString &path);

    /// Some of the files that are to be copied would replace these.
    void replacementAsked(const QStringList &paths);

private:
    struct Change
    {
        QUuid skillID = {};
        qint64 revision = 0;
        QList<PathChange> changes = {};
        QString confirmation = {};
        std::function<void()> followEdits = [] {}; ///< of what isn't saved
        std::function<void()> tell = [] {};
    };

    bool isTaken(const QString &path) const;
    bool hasFolder(const QString &path) const;
    void look();
    bool ask(Change change, const QString &verb);
    QCoro::Task<> run(Change change);
    QCoro::Task<DroppedFiles> read(QList<QUrl> urls, QString folder);
    void receive(DroppedFiles dropped);

    const std::shared_ptr<WindowServicing> m_service;
    Operations &m_operations;
    Library &m_library;
    SelectedSkill &m_selected;
    CopyReplacement &m_replacement;
    FileDrafts &m_drafts;
    QStringList m_emptyFolders;
    LatestAnswer<Answer<QStringList>> m_looking;
    Change m_change; ///< that the user is asked about
    bool m_isReading = false;
    DroppedFiles m_new; ///< what is to be copied
};

} // namespace vornel

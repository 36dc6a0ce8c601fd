#include "FileChanges.h"

#include <VORNELCore/Errors/VORNELWorkspaceError.h>
#include <VORNELCore/Library/FilePathRules.h>

#include <QtConcurrentRun>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace vornel {

FileChanges::FileChanges(std::shared_ptr<WindowServicing> service, Operations &operations, Library &library,
                         SelectedSkill &selected, CopyReplacement &replacement, FileDrafts &drafts)
    : m_service(std::move(service)),
      m_operations(operations),
      m_library(library),
      m_selected(selected),
      m_replacement(replacement),
      m_drafts(drafts),
      m_looking(this, [this](const Answer<QStringList> &answer) {
          const QStringList folders = answer.value.value_or(QStringList());
          if (std::exchange(m_emptyFolders, folders) != folders)
              Q_EMIT emptyFoldersChanged();
      })
{
    connect(&m_selected, &SelectedSkill::detailChanged, this, &FileChanges::look);
    connect(&m_replacement, &CopyReplacement::agreed, this, [this](CopyReplacement::Purpose purpose) {
        if (purpose == CopyReplacement::Changing)
            run(std::exchange(m_change, {}));
    });
}

void FileChanges::look()
{
    if (m_selected.shows(m_selected.id()))
        m_looking.ask([this, id = m_selected.id()] { return answerOf(m_service->emptyFolders(id)); });
}

QString FileChanges::problem(const QString &path, bool isFolder, const QString &former) const
try {
    if (path.isEmpty() || !m_selected.detail())
        return {};
    FilePathRules::requireUsable(path);
    FilePathRules::requireReachable(path, isFolder);
    if (isTaken(path))
        return u"Ce nom est déjà pris."_s;
    const QStringList files = m_selected.detail()->relativeFiles + m_drafts.paths();
    FilePathRules::requireFoldersAbove(path,
                                       [&files](const QString &above) { return files.contains(above); });
    if (!former.isEmpty())
        FilePathRules::requireElsewhere(former, path);
    return {};
} catch (const VORNELWorkspaceError &error) { // nothing has failed while it is typed
    const auto *const refusal = error.as<WorkspaceErrorCase::IntegrityFailure>();
    return refusal != nullptr ? refusal->reason : error.errorDescription();
}

bool FileChanges::isTaken(const QString &path) const
{
    const QStringList known = m_selected.detail()->relativeFiles + m_emptyFolders + m_drafts.paths();
    return std::ranges::any_of(
        known, [&path](const QString &other) { return other == path || other.startsWith(path + u'/'); });
}

bool FileChanges::hasFolder(const QString &path) const
{
    const auto isBelow = [&path](const QString &other) { return other.startsWith(path + u'/'); };
    return m_emptyFolders.contains(path) ||
           std::ranges::any_of(m_selected.detail()->relativeFiles + m_emptyFolders, isBelow);
}

void FileChanges::createFile(const QString &path)
{
    if (problem(path, false).isEmpty())
        ask({.changes = {WrittenFile{path, {}}},
             .confirmation = u"FICHIER CRÉÉ"_s,
             .tell = [this, path] { Q_EMIT created(path); }},
            u"Créer ce fichier"_s);
}

void FileChanges::createFolder(const QString &path)
{
    if (problem(path, true).isEmpty())
        ask({.changes = {NewFolder{path}},
             .confirmation = u"DOSSIER CRÉÉ"_s,
             .tell = [this, path] { Q_EMIT created(path); }},
            u"Créer ce dossier"_s);
}

void FileChanges::move(const QString &from, const QString &to)
{
    if (from != to)
        ask({.changes = {MovedPath{from, to}},
             .confirmation = u"DÉPLACÉ"_s,
             .followEdits = [this, from, to] { m_drafts.move(from, to); },
             .tell = [this, from, to] { Q_EMIT moved(from, to); }},
            u"Déplacer"_s);
}

void FileChanges::remove(const QString &path)
{
    ask({.changes = {RemovedPath{path}},
         .confirmation = u"SUPPRIMÉ"_s,
         .followEdits = [this, path] { m_drafts.remove(path); },
         .tell = [this, path] { Q_EMIT removed(path); }},
        u"Supprimer"_s);
}

bool FileChanges::ask(Change change, const QString &verb)
{
    const bool isAsking = m_replacement.isLooking() || m_replacement.isAsking();
    if (m_operations.isWorking() || isAsking || !m_selected.detail())
        return false;
    const SkillManifest &shown = m_selected.detail()->manifest;
    change.skillID = shown.id;
    change.revision = shown.revision;
    m_change = std::move(change);
    m_replacement.change(verb);
    return true;
}

/// The edits follow as soon as the change is made, whatever is read and shown after it.
QCoro::Task<> FileChanges::run(Change change)
{
    const Outcome outcome = co_await m_operations.perform([this, &change]() -> QCoro::Task<> {
        const SkillDetail skill =
            co_await m_service->changeFiles(change.skillID, change.changes, change.revision);
        if (m_selected.shows(change.skillID))
            change.followEdits();
        m_selected.show(skill);
        if (m_selected.shows(change.skillID))
            change.tell();
        co_await m_library.read();
        m_operations.confirm(change.confirmation);
    });
    if (outcome.isSynchronizationIncomplete() && m_selected.shows(change.skillID)) {
        change.followEdits();
        change.tell();
    }
}

void FileChanges::bring(const QList<QUrl> &urls, const QString &folder)
{
    if (m_isReading || m_operations.isWorking())
        return m_operations.showFailure(
            {.succeeded = false, .message = u"VORNEL travaille encore. Réessayez dans un instant."_s});
    m_isReading = true;
    QCoro::connect(read(urls, folder), this, [this, id = m_selected.id()](const DroppedFiles &dropped) {
        m_isReading = false;
        if (m_selected.shows(id))
            receive(dropped);
    });
}

QCoro::Task<DroppedFiles> FileChanges::read(QList<QUrl> urls, QString folder)
{
    const Operations::Running running(m_operations);
    co_return co_await QtConcurrent::run(readDropped, urls, folder);
}

void FileChanges::receive(DroppedFiles dropped)
{
    dropped.emptyFolders.removeDuplicates();
    dropped.emptyFolders.removeIf([this](const QString &folder) { return hasFolder(folder); });
    if (dropped.failure.isEmpty() && dropped.files.isEmpty() && dropped.emptyFolders.isEmpty())
        dropped.failure = u"Il n’y a rien de nouveau à copier."_s;
    if (!dropped.failure.isEmpty())
        return m_operations.showFailure({.succeeded = false, .message = dropped.failure});
    QStringList replaced;
    for (const WrittenFile &file : dropped.files) {
        if (m_selected.detail()->relativeFiles.contains(file.path) || m_drafts.find(file.path))
            replaced.append(file.path);
    }
    m_new = std::move(dropped);
    if (replaced.isEmpty())
        add();
    else
        Q_EMIT replacementAsked(replaced);
}

void FileChanges::add()
{
    const DroppedFiles added = std::exchange(m_new, {});
    QList<PathChange> changes(added.files.begin(), added.files.end());
    for (const QString &folder : added.emptyFolders)
        changes.append(NewFolder{folder});
    if (changes.isEmpty())
        return;
    const bool isOne = changes.size() == 1;
    const bool isOfFolders = added.files.isEmpty();
    const QString noun = (isOfFolders ? u"dossier"_s : u"fichier"_s) + (isOne ? QString() : u"s"_s);
    const QString first = isOfFolders ? added.emptyFolders.first() : added.files.first().path;
    Change change{.changes = changes,
                  .confirmation = noun.toUpper() + (isOne ? u" COPIÉ"_s : u" COPIÉS"_s),
                  .followEdits =
                      [this, added] {
                          for (const WrittenFile &file : added.files)
                              m_drafts.remove(file.path);
                      },
                  .tell = [this, first] { Q_EMIT created(first); }};
    if (!ask(std::move(change), (isOne ? u"Copier ce "_s : u"Copier ces "_s) + noun))
        m_operations.showFailure(
            {.succeeded = false, .message = u"VORNEL travaille encore\u00A0: rien n’a été copié."_s});
}

} // namespace vornel

#include "OpenSkill.h"

#include <VORNELApp/Model/Answer.h>
#include <VORNELCore/Text/Digest.h>

using namespace Qt::StringLiterals;

namespace vornel {

void OpenSkill::save()
{
    setAskingToLeave(false);
    if (m_draft.isSaved())
        m_departure.resume();
    else if (m_operations.isWorking())
        m_departure.stay();
    else if (state() != Saving && state() != AskingToReplace)
        checkAndSave();
}

QCoro::Task<> OpenSkill::checkAndSave()
{
    const Operations::Running running(m_operations);
    const QUuid id = m_id;
    setUnderWay(true);
    const bool mayGoOn = co_await isUnchanged();
    if (m_id != id)
        co_return;
    setUnderWay(false);
    if (mayGoOn)
        m_replacement.save(m_draft.text());
    else
        refuse();
}

void OpenSkill::followReplacement(CopyReplacement::Purpose purpose)
{
    if (purpose == CopyReplacement::Saving)
        checkAndWrite();
    else if (purpose == CopyReplacement::Synchronising)
        installCopies();
}

/// The user may have taken his time to agree, so that the text on the disk is looked at again.
QCoro::Task<> OpenSkill::checkAndWrite()
{
    const Operations::Running running(m_operations);
    const QUuid id = m_id;
    const QString text = m_draft.text();
    Outcome outcome = Outcome::nothingDone();
    setUnderWay(true);
    if (co_await isUnchanged()) {
        m_draft.beginSaving(text);
        outcome = co_await write(text);
    }
    if (m_id != id)
        co_return;
    setUnderWay(false);
    conclude(text, outcome);
}

/// Sees whether the files still hold what is known of them: a save would replace what isn't known here. The
/// service compares revisions, and whoever edits a file in place leaves the revision as it is.
QCoro::Task<bool> OpenSkill::isUnchanged()
{
    co_return co_await isTextUnchanged() && co_await areFilesUnchanged();
}

/// A file whose first edit begins meanwhile is looked at too.
QCoro::Task<bool> OpenSkill::areFilesUnchanged()
{
    const QUuid id = m_id;
    QSet<QString> checked;
    for (auto file = m_draft.files()->next(checked); file; file = m_draft.files()->next(checked)) {
        const std::optional<QByteArray> bytes = co_await readFile(file->path);
        if (!bytes || !isEditing(id))
            co_return false;
        if (sha256Of(*bytes) != file->baseDigest) {
            Q_EMIT fileRefused(file->path);
            co_return false;
        }
        checked.insert(file->path);
    }
    co_return true;
}

QCoro::Task<bool> OpenSkill::isTextUnchanged()
{
    const QUuid id = m_id;
    const QByteArray known = m_draft.knownBytes();
    const std::optional<QByteArray> bytes = co_await readText();
    const bool isSame = bytes == known;
    const bool isReadAgain = bytes && (!isSame || m_draft.standing() != SkillDraft::Current);
    const bool isRefreshed = isReadAgain && co_await m_selected.readQuietly();
    if (!isEditing(id))
        co_return false;
    if (isSame && isRefreshed)
        m_draft.follow(*m_selected.detail()); // the disk may hold the text again that the edits began with
    else if (bytes && !isSame && !isRefreshed)
        m_draft.setStale(); // whatever it is, it is not the text that was saved
    co_return bytes &&m_draft.standing() == SkillDraft::Current;
}

/// The bytes of a file, whatever they are, and none where it is missing; nothing when they can't be read.
QCoro::Task<std::optional<QByteArray>> OpenSkill::readFile(QString path)
{
    const QUuid id = m_id;
    m_operations.clearError();
    const auto answer = co_await answerOf(m_service->readFile(m_id, std::nullopt, path));
    if (answer.value)
        co_return answer.value->value_or(QByteArray());
    m_operations.showFailure(answer.outcome);
    if (isEditing(id))
        followFailure(answer.outcome);
    co_return std::nullopt;
}

QCoro::Task<std::optional<QByteArray>> OpenSkill::readText()
{
    return readFile(u"SKILL.md"_s);
}

QCoro::Task<Outcome> OpenSkill::write(QString skillMD)
{
    if (!m_selected.detail())
        co_return Outcome::nothingDone();
    const SkillManifest shown = m_selected.detail()->manifest;
    co_return co_await m_operations.perform([this, &shown, &skillMD]() -> QCoro::Task<> {
        const SkillDetail skill = co_await saved(shown, skillMD);
        m_draft.files()->endSaving(true);
        m_selected.show(skill);
        co_await m_library.read();
        m_operations.confirm(u"ENREGISTRÉE"_s);
    });
}

/// All texts make one revision.
QFuture<SkillDetail> OpenSkill::saved(const SkillManifest &skill, const QString &skillMD)
{
    QList<PathChange> changes;
    for (const UnsavedFile &file : m_draft.files()->edits())
        changes.append(WrittenFile{file.path, file.text.toUtf8()});
    if (changes.isEmpty())
        return m_service->saveSkill(skill.id, skill.revision, skillMD);
    changes.append(WrittenFile{u"SKILL.md"_s, skillMD.toUtf8()});
    return m_service->changeFiles(skill.id, changes, skill.revision);
}

QCoro::Task<Outcome> OpenSkill::installCopies()
{
    if (!m_selected.detail())
        co_return Outcome::nothingDone();
    const QUuid id = m_selected.detail()->manifest.id;
    co_return co_await m_operations.perform([this, &id]() -> QCoro::Task<> {
        m_selected.show(co_await m_service->synchronize(id));
        co_await m_library.read();
        m_operations.confirm(u"À JOUR"_s);
    });
}

void OpenSkill::conclude(const QString &text, const Outcome &outcome)
{
    const bool isSaved = outcome || outcome.isSynchronizationIncomplete();
    m_draft.endSaving(isSaved);
    if (!outcome) {
        followFailure(outcome);
        if (!isSaved && !outcome.errorCase.isEmpty()) {
            m_refusal = outcome;
            m_refusedText = text;
        }
        refuse();
    } else if (!m_draft.isModified()) {
        setAskingToLeave(false);
        m_departure.resume();
    } else if (!m_isAskingToLeave) { // something was typed meanwhile
        m_departure.stay();
    }
}

void OpenSkill::refuse()
{
    m_departure.stay();
    if (m_draft.standing() == SkillDraft::Current)
        return;
    m_replacement.copies()->look(); // which differ from what the skill has become
    Q_EMIT refused();
}

void OpenSkill::synchronize()
{
    if (m_draft.isAttached())
        m_replacement.synchronize();
}

void OpenSkill::reload()
{
    reloadText();
}

QCoro::Task<> OpenSkill::reloadText()
{
    const Operations::Running running(m_operations);
    const QUuid id = m_id;
    const Outcome outcome = co_await m_operations.perform([this, id] { return m_selected.read(id); });
    if (outcome && isEditing(id))
        m_draft.take(m_selected.detail()->skillMD);
}

void OpenSkill::overrule()
{
    overruleText();
}

/// What is on the disk need not be a text, nor be there at all, to be replaced knowingly.
QCoro::Task<> OpenSkill::overruleText()
{
    const Operations::Running running(m_operations);
    const QUuid id = m_id;
    const std::optional<QByteArray> bytes = co_await readText();
    if (!bytes)
        co_return;
    const bool isLoaded = co_await m_selected.readQuietly();
    if (!isLoaded)
        co_await takeOverRevision();
    if (!isEditing(id))
        co_return;
    if (isLoaded)
        m_draft.adopt(m_selected.detail()->skillMD);
    else
        m_draft.adopt(QString::fromUtf8(*bytes), *bytes);
    save();
}

/// The library knows the revision even where the text can't be read, which a save may then replace.
QCoro::Task<> OpenSkill::takeOverRevision()
{
    co_await m_library.readQuietly();
    std::optional<SkillDetail> skill = m_selected.detail();
    const std::optional<SkillSummary> known = m_library.skill(m_id);
    if (!skill || !known)
        co_return;
    skill->manifest.revision = known->revision;
    m_selected.show(*skill);
}

void OpenSkill::discardAndLeave()
{
    setAskingToLeave(false);
    m_draft.discard();
    m_departure.resume();
}

void OpenSkill::stay()
{
    m_departure.stay();
}

} // namespace vornel

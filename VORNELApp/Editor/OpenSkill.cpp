#include "OpenSkill.h"

#include <VORNELApp/Model/Answer.h>

#include <utility>

using namespace Qt::StringLiterals;

namespace vornel {

OpenSkill::OpenSkill(std::shared_ptr<WindowServicing> service, DraftKeeping &drafts, Operations &operations,
                     Library &library, SelectedSkill &selected, Departure &departure)
    : m_service(std::move(service)),
      m_operations(operations),
      m_library(library),
      m_selected(selected),
      m_departure(departure),
      m_draft(drafts),
      m_replacement(*m_service, operations)
{
    connect(&m_selected, &SelectedSkill::detailChanged, this, &OpenSkill::followDetail);
    connect(&m_operations, &Operations::isWorkingChanged, this, &OpenSkill::refresh);
    connect(&m_library, &Library::wasRead, this, &OpenSkill::refresh);
    connect(&m_draft, &SkillDraft::changed, this, &OpenSkill::followDraft);
    connect(&m_draft, &SkillDraft::edited, this, &OpenSkill::followEdits);
    connect(&m_draft, &SkillDraft::keepingFailureChanged, this, &OpenSkill::followKeeping);
    connect(&m_replacement, &CopyReplacement::changed, this, &OpenSkill::stateChanged);
    connect(&m_replacement, &CopyReplacement::agreed, this, &OpenSkill::followReplacement);
    connect(&m_replacement, &CopyReplacement::declined, &m_departure, &Departure::stay);
    connect(&m_departure, &Departure::isPendingChanged, this, &OpenSkill::followDeparture);
    connect(&m_departure, &Departure::forced, this, [this] {
        m_draft.keepNow();
        followKeeping();
    });
}

OpenSkill::State OpenSkill::state() const
{
    if (!m_draft.isAttached())
        return Closed;
    if (m_isAskingToLeave)
        return Leaving;
    if (m_replacement.isAsking())
        return AskingToReplace;
    if (m_isUnderWay || (m_replacement.isLooking() && m_replacement.purpose() == CopyReplacement::Saving))
        return Saving;
    switch (m_draft.standing()) {
    case SkillDraft::Gone:
        return Gone;
    case SkillDraft::Stale:
        return Stale;
    case SkillDraft::Current:
        break;
    }
    return m_draft.isModified() ? Modified : Clean;
}

void OpenSkill::edit(QQuickTextDocument *document)
{
    m_draft.attach(document->textDocument());
    followDetail();
}

void OpenSkill::begin()
{
    m_id = m_selected.id();
    m_draft.begin(*m_selected.detail(), m_selected.foundDraft(m_id));
    m_replacement.decline();
    m_replacement.copies()->setSkillID(m_id);
    m_replacement.copies()->look();
}

void OpenSkill::followDetail()
{
    m_isFresh = m_operations.isWorking();
    if (!m_draft.isAttached())
        return;
    if (!m_selected.shows(m_selected.id()))
        m_draft.stopKeeping();
    else if (m_selected.id() != m_id)
        begin();
    else
        m_draft.follow(*m_selected.detail());
}

void OpenSkill::followDraft()
{
    if (!m_draft.isAttached()) {
        m_id = {};
        m_replacement.decline();
        m_replacement.copies()->setSkillID({});
    }
    m_departure.setGuarded(this, m_draft.isModified());
    Q_EMIT stateChanged();
}

/// With the text that was refused goes what is said of it.
void OpenSkill::followEdits()
{
    if (!m_refusal && m_draft.differsFrom(m_refusedText)) {
        m_operations.dismiss(m_refusal);
        m_refusal = {};
    }
}

/// What can't be kept once the program has to end is lost.
void OpenSkill::followKeeping()
{
    if (!m_departure.isForced())
        return;
    const QString name = m_selected.detail() ? m_selected.detail()->manifest.displayName : QString();
    const QString failure = m_draft.keepingFailure();
    m_departure.setLoss(
        failure.isEmpty()
            ? QString()
            : u"Le texte non enregistré de «\u00A0%1\u00A0» n’a pas pu être gardé. %2"_s.arg(name, failure));
}

void OpenSkill::followDeparture()
{
    setAskingToLeave(m_departure.isPending() && m_draft.isModified());
}

/// What an operation or another program may have changed is looked at: once an operation is over, and
/// whenever the library was read. What the operation has returned needn't be read again.
QCoro::Task<> OpenSkill::refresh()
{
    if (m_operations.isWorking() || !m_library.overview() || !isEditing(m_id))
        co_return;
    const Operations::Running running(m_operations);
    const bool isFresh = std::exchange(m_isFresh, false);
    const bool isPresent = m_library.skill(m_id).has_value();
    m_draft.followPresence(isPresent, *m_selected.detail());
    if (isPresent && !isFresh)
        co_await m_selected.readQuietly();
    m_replacement.copies()->look();
}

void OpenSkill::save()
{
    setAskingToLeave(false);
    if (m_draft.isSaved())
        m_departure.resume();
    else if (m_operations.isWorking())
        m_departure.stay();
    else if (!m_isUnderWay)
        checkAndSave();
}

QCoro::Task<> OpenSkill::checkAndSave()
{
    const Operations::Running running(m_operations);
    setUnderWay(true);
    const bool mayGoOn = co_await isUnchanged();
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
    else
        installCopies();
}

/// The user may have taken his time to agree, so that the text on the disk is looked at again.
QCoro::Task<> OpenSkill::checkAndWrite()
{
    const Operations::Running running(m_operations);
    const QString text = m_draft.text();
    Outcome outcome = Outcome::nothingDone();
    setUnderWay(true);
    if (co_await isUnchanged()) {
        m_draft.beginSaving(text);
        outcome = co_await write(text);
    }
    setUnderWay(false);
    conclude(text, outcome);
}

/// Sees whether "SKILL.md" still holds what is known of it: a save would replace what isn't known here. The
/// service compares revisions, and whoever edits the file in place leaves the revision as it is.
QCoro::Task<bool> OpenSkill::isUnchanged()
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
        m_draft.follow(*m_selected.detail()); // which may hold again what the edits began with
    else if (bytes && !isSame && !isRefreshed)
        m_draft.setStale(); // whatever it is, it is not the text that was saved
    co_return bytes &&m_draft.standing() == SkillDraft::Current;
}

/// The bytes of "SKILL.md", whatever they are, and none where it is missing; nothing when they can't be read.
QCoro::Task<std::optional<QByteArray>> OpenSkill::readText()
{
    m_operations.clearError();
    const auto answer = co_await answerOf(m_service->readFile(m_id, std::nullopt, u"SKILL.md"_s));
    if (answer.value)
        co_return answer.value->value_or(QByteArray());
    m_operations.showFailure(answer.outcome);
    followFailure(answer.outcome);
    co_return std::nullopt;
}

QCoro::Task<Outcome> OpenSkill::write(QString skillMD)
{
    if (!m_selected.detail())
        co_return Outcome::nothingDone();
    const SkillManifest shown = m_selected.detail()->manifest;
    co_return co_await m_operations.perform([this, &shown, &skillMD]() -> QCoro::Task<> {
        m_selected.show(co_await m_service->saveSkill(shown.id, shown.revision, skillMD));
        co_await m_library.read();
        m_operations.confirm(u"ENREGISTRÉE"_s);
    });
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
    if (m_draft.standing() != SkillDraft::Current)
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

bool OpenSkill::isEditing(const QUuid &id) const
{
    return m_draft.isAttached() && m_id == id && m_selected.shows(id);
}

/// What a failure tells of the skill.
void OpenSkill::followFailure(const Outcome &outcome)
{
    if (outcome.isCase(WorkspaceErrorCase::RevisionConflict::name))
        m_draft.setStale();
    else if (outcome.isCase(WorkspaceErrorCase::SkillNotFound::name))
        m_draft.setGone();
}

void OpenSkill::setUnderWay(bool isUnderWay)
{
    if (std::exchange(m_isUnderWay, isUnderWay) != isUnderWay)
        Q_EMIT stateChanged();
}

void OpenSkill::setAskingToLeave(bool isAsking)
{
    if (std::exchange(m_isAskingToLeave, isAsking) != isAsking)
        Q_EMIT stateChanged();
}

} // namespace vornel

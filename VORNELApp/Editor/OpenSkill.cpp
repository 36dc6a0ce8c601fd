#include "OpenSkill.h"

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
      m_replacement(*m_service, operations),
      m_files(m_service, operations, library, selected, m_replacement, *m_draft.files()),
      m_lookingForHandEdits(this, [this](const Answer<QSet<QUuid>> &answer) {
          setEditedByHand(answer.value && answer.value->contains(m_id));
      })
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

void OpenSkill::edit(QTextDocument *document)
{
    m_draft.attach(document);
    followDetail();
}

void OpenSkill::begin()
{
    m_id = m_selected.id();
    m_draft.begin(*m_selected.detail(), m_selected.foundDraft(m_id));
    m_replacement.decline();
    m_replacement.copies()->setSkillID(m_id);
    setEditedByHand(false);
    lookAround();
}

/// Looks at what others may have written into the skill's folders.
void OpenSkill::lookAround()
{
    m_replacement.copies()->look();
    m_lookingForHandEdits.ask([this] { return answerOf(m_service->editedByHand({m_id})); });
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
        m_isUnderWay = false;
        if (m_isAskingToLeave)
            m_departure.stay();
        m_replacement.decline();
        m_replacement.copies()->setSkillID({});
        setEditedByHand(false);
    }
    m_departure.setGuarded(this, m_draft.isModified());
    Q_EMIT stateChanged();
}

/// Once the refused text is another, the refusal no longer applies.
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
    lookAround();
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

void OpenSkill::setEditedByHand(bool isEdited)
{
    if (std::exchange(m_isEditedByHand, isEdited) != isEdited)
        Q_EMIT isEditedByHandChanged();
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

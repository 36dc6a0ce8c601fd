#include "SkillDraft.h"

#include <VORNELCore/Library/LocaleText.h>
#include <VORNELCore/Library/Wording.h>

#include <QClipboard>
#include <QCoro/QCoroFuture>
#include <QGuiApplication>
#include <QTextDocument>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vornel {

SkillDraft::SkillDraft(QObject *parent) : QObject(parent)
{
    for (const auto changed : {&SkillDraft::isModifiedChanged, &SkillDraft::standingChanged})
        connect(this, changed, this, &SkillDraft::isSavedChanged);
}

SkillDraft::~SkillDraft()
{
    if (m_model != nullptr)
        m_model->departure()->setGuarded(this, false);
}

void SkillDraft::componentComplete()
{
    QTextDocument *document = m_document->textDocument();
    m_text.emplace(document);
    m_keeper.emplace(m_model->drafts(), [this] { return unsavedText(m_text->text()); });
    connect(&*m_keeper, &DraftKeeper::failureChanged, this, &SkillDraft::followKeeping);
    connect(m_model->departure(), &Departure::forced, this, [this] {
        m_keeper->keepNow();
        followKeeping();
    });
    m_counting.setSingleShot(true);
    connect(&m_counting, &QTimer::timeout, this, &SkillDraft::count);
    connect(document, &QTextDocument::contentsChanged, this, &SkillDraft::measure);
    connect(m_model, &AppModel::selectedSkillChanged, this, &SkillDraft::followSkill);
    connect(m_model, &AppModel::isWorkingChanged, this, &SkillDraft::followLibrary);
    connect(m_model, &AppModel::overviewChanged, this, &SkillDraft::followLibrary);
    followSkill();
}

UnsavedText SkillDraft::unsavedText(const QString &text) const
{
    return {text, m_otherBase.isEmpty() ? m_savedText : QString(), m_otherBase};
}

/// What can't be kept once the program has to end is lost.
void SkillDraft::followKeeping()
{
    Q_EMIT keepingFailureChanged();
    if (!m_model->departure()->isForced())
        return;
    const QString name =
        m_model->selectedSkill() ? m_model->selectedSkill()->manifest.displayName : QString();
    m_model->departure()->setLoss(
        keepingFailure().isEmpty()
            ? QString()
            : u"Le texte non enregistré de «\u00A0%1\u00A0» n’a pas pu être gardé. %2"_s.arg(
                  name, keepingFailure()));
}

void SkillDraft::check(const QJSValue &action)
{
    if (m_isUnderWay)
        return;
    setUnderWay(true);
    checkText(this, m_model, action);
}

QCoro::Task<> SkillDraft::checkText(QPointer<SkillDraft> draft, AppModel *model, QJSValue action)
{
    const bool mayGoOn = co_await isUnchanged(draft, model);
    if (draft.isNull())
        co_return;
    draft->setUnderWay(false);
    if (mayGoOn)
        action.call();
    else
        Q_EMIT draft->saveFailed();
}

void SkillDraft::save()
{
    if (m_isUnderWay)
        return;
    setUnderWay(true);
    saveText(this, m_model, m_text->text());
}

QCoro::Task<> SkillDraft::saveText(QPointer<SkillDraft> draft, AppModel *model, QString text)
{
    const bool mayGoOn = co_await isUnchanged(draft, model);
    if (draft.isNull())
        co_return;
    Outcome outcome{.succeeded = false};
    if (mayGoOn) {
        draft->m_sentText = text;
        outcome = co_await model->saveSelectedSkill(std::move(text));
    }
    if (draft.isNull())
        co_return;
    draft->setUnderWay(false);
    draft->conclude(outcome);
}

/// Sees whether "SKILL.md" still holds what is known of it: a save would replace what isn't known here. The
/// service compares revisions, and whoever edits the file in place leaves the revision as it is.
QCoro::Task<bool> SkillDraft::isUnchanged(QPointer<SkillDraft> draft, AppModel *model)
{
    const QUuid id = draft->m_skillID;
    const QByteArray known = draft->m_knownBytes;
    const auto look = co_await model->readSelectedText();
    const bool isSame = look.first == known;
    bool isRefreshed = false;
    if (look.first && !draft.isNull() && (!isSame || draft->m_standing != Current))
        isRefreshed = co_await model->refreshSelectedSkill();
    if (draft.isNull() || draft->m_skillID != id)
        co_return false;
    if (!look.first)
        draft->followFailure(look.second);
    else if (isSame && isRefreshed)
        draft->followSkill(); // which may hold again what the edits began with
    else if (!isSame && !isRefreshed)
        draft->setStanding(Stale); // whatever it is, it is not the text that was saved
    co_return look.first && draft->m_standing == Current;
}

void SkillDraft::conclude(const Outcome &outcome)
{
    if (outcome) {
        Q_EMIT saved();
        return;
    }
    followFailure(outcome);
    if (!outcome.isSynchronizationIncomplete()) { // otherwise the text itself is saved
        m_refusal = outcome.errorCase.isEmpty() ? QString() : outcome.message;
        m_refusedText = m_sentText.value_or(QString());
        m_sentText.reset();
    }
    Q_EMIT saveFailed();
}

/// With the refused text goes what is said of it, unless the model says something else by now.
void SkillDraft::followRefusal()
{
    if (m_refusal.isEmpty() || !m_text->differsFrom(m_refusedText))
        return;
    if (m_model->errorMessage() == m_refusal)
        m_model->clearError();
    m_refusal.clear();
}

/// What a failure tells of the skill.
void SkillDraft::followFailure(const Outcome &outcome)
{
    if (outcome.isCase(WorkspaceErrorCase::RevisionConflict::name))
        setStanding(Stale);
    else if (outcome.isCase(WorkspaceErrorCase::SkillNotFound::name))
        setStanding(Gone);
}

void SkillDraft::reload()
{
    reloadText(this, m_model);
}

QCoro::Task<> SkillDraft::reloadText(QPointer<SkillDraft> draft, AppModel *model)
{
    const QUuid id = draft->m_skillID;
    const Outcome outcome = co_await model->reloadSelectedSkill();
    if (outcome && !draft.isNull() && draft->isOpen(id))
        draft->take(model->selectedSkill()->skillMD);
}

void SkillDraft::overrule()
{
    overruleText(this, m_model);
}

/// What is on the disk need not be a text, nor be there at all, to be replaced knowingly.
QCoro::Task<> SkillDraft::overruleText(QPointer<SkillDraft> draft, AppModel *model)
{
    const QUuid id = draft->m_skillID;
    const auto bytes = (co_await model->readSelectedText()).first;
    if (!bytes)
        co_return;
    const bool isLoaded = co_await model->refreshSelectedSkill();
    if (!isLoaded)
        co_await model->refreshSelectedRevision();
    if (draft.isNull() || !draft->isOpen(id))
        co_return;
    draft->adopt(isLoaded ? model->selectedSkill()->skillMD : QString::fromUtf8(*bytes));
    if (!isLoaded)
        draft->m_knownBytes = *bytes;
    Q_EMIT draft->overruled();
}

bool SkillDraft::isOpen(const QUuid &id) const
{
    const std::optional<SkillDetail> skill = m_model->selectedSkill();
    return m_skillID == id && skill && skill->manifest.id == id;
}

void SkillDraft::discard()
{
    m_text->replace(m_savedText);
}

void SkillDraft::copy() const
{
    QGuiApplication::clipboard()->setText(m_text->text());
}

/// Takes over what the model shows now. Where the text has changed elsewhere, edits stay, and can't be saved
/// over it.
void SkillDraft::followSkill()
{
    const std::optional<SkillDetail> skill = m_model->selectedSkill();
    if (!skill) {
        m_keeper->stop();
    } else if (skill->manifest.id != m_skillID) {
        begin(*skill);
    } else if (m_otherBase.isEmpty() && skill->skillMD == m_savedText) {
        adopt(skill->skillMD);
    } else if (isSaved() || skill->skillMD == m_sentText || !m_text->differsFrom(skill->skillMD)) {
        m_isModified ? adopt(skill->skillMD) : take(skill->skillMD);
    } else {
        setStanding(Stale);
    }
}

void SkillDraft::begin(const SkillDetail &skill)
{
    m_keeper->stop();
    m_skillID = skill.manifest.id;
    m_sentText.reset();
    m_text->begin(skill.skillMD);
    adopt(skill.skillMD);
    takeUpFoundDraft();
    count();
    Q_EMIT begun();
}

/// An unsaved text that was found becomes an edit, so that whatever is typed continues it, and undoing leads
/// back to the saved one.
void SkillDraft::takeUpFoundDraft()
{
    const FoundDraft found = m_model->foundDraft(m_skillID);
    m_lookFailure = found.failure;
    m_keeper->begin(m_skillID, {});
    if (!found.draft)
        return;
    const bool isEdit = m_text->differsFrom(found.draft->text);
    if (isEdit && found.isStale)
        m_otherBase = found.draft->baseDigest;
    m_keeper->begin(m_skillID, unsavedText(found.draft->text));
    if (!isEdit) {
        m_keeper->forget();
        return;
    }
    m_text->replace(found.draft->text);
    setFoundMoment(Wording::dayAndTime(found.draft->keptAt, QDateTime::currentDateTimeUtc()));
    if (found.isStale)
        setStanding(Stale);
}

/// Shows a text that comes from the disk.
void SkillDraft::take(const QString &text)
{
    if (m_text->differsFrom(text))
        m_text->replace(text);
    adopt(text);
}

/// From now on, this is what the skill holds.
void SkillDraft::adopt(const QString &text)
{
    m_savedText = text;
    m_knownBytes = text.toUtf8();
    m_otherBase.clear();
    if (!m_isUnderWay || text == m_sentText) // else what is being saved is still to come
        m_sentText.reset();
    setStanding(Current);
    measure();
}

/// Sees, once an operation is over or the library was read anew quietly, whether the skill is still what it
/// was.
void SkillDraft::followLibrary()
{
    if (m_model->isWorking() || !m_model->selectedSkill() || !m_model->overview())
        return;
    const QList<SkillSummary> skills = m_model->overview()->skills;
    if (std::ranges::find(skills, m_skillID, &SkillSummary::id) == skills.end()) {
        setStanding(Gone);
        return;
    }
    if (m_standing == Gone) { // it is there again, and may have moved on before it went
        const bool isSame = m_otherBase.isEmpty() && m_model->selectedSkill()->skillMD == m_savedText;
        setStanding(isSame ? Current : Stale);
    }
    m_model->refreshSelectedSkill();
}

void SkillDraft::measure()
{
    followRefusal();
    setModified(m_text->differsFrom(m_savedText));
    m_isModified ? m_keeper->keepSoon() : settle();
    m_counting.start();
}

/// There are no edits any more. New ones begin with the saved text, whatever those began with that were
/// found.
void SkillDraft::settle()
{
    m_keeper->forget();
    setFoundMoment({});
    const std::optional<SkillDetail> skill = m_model->selectedSkill();
    if (!m_otherBase.isEmpty() && m_standing == Stale && skill && skill->skillMD == m_savedText)
        adopt(skill->skillMD);
}

void SkillDraft::count()
{
    const int count = LocaleText::characterCount(m_text->text());
    if (std::exchange(m_characterCount, count) != count)
        Q_EMIT characterCountChanged();
}

void SkillDraft::setModified(bool isModified)
{
    m_model->departure()->setGuarded(this, isModified);
    if (std::exchange(m_isModified, isModified) != isModified)
        Q_EMIT isModifiedChanged();
}

void SkillDraft::setFoundMoment(const QString &moment)
{
    if (std::exchange(m_foundMoment, moment) != moment)
        Q_EMIT foundMomentChanged();
}

void SkillDraft::setUnderWay(bool isUnderWay)
{
    if (std::exchange(m_isUnderWay, isUnderWay) != isUnderWay)
        Q_EMIT isUnderWayChanged();
}

void SkillDraft::setStanding(Standing standing)
{
    if (std::exchange(m_standing, standing) != standing)
        Q_EMIT standingChanged();
}

} // namespace vornel

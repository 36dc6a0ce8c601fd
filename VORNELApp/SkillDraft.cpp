#include "SkillDraft.h"

#include <VORNELCore/LocaleText.h>
#include <VORNELCore/SerializedForms.h>
#include <VORNELCore/VORNELWorkspaceError.h>
#include <VORNELCore/Wording.h>

#include <QClipboard>
#include <QCoro/QCoroFuture>
#include <QGuiApplication>
#include <QTextDocument>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vornel {

SkillDraft::~SkillDraft()
{
    if (m_model != nullptr)
        m_model->departure()->setGuarded(this, false);
}

void SkillDraft::componentComplete()
{
    QTextDocument *document = m_document->textDocument();
    m_text.emplace(document);
    m_keeper.emplace(m_model->drafts(), [this] {
        return KeptDraft{1, m_text->text(), m_baseDigest, currentInstant()};
    });
    connect(&*m_keeper, &DraftKeeper::failureChanged, this, &SkillDraft::keepingFailureChanged);
    connect(m_model->departure(), &Departure::forced, &*m_keeper, &DraftKeeper::keepNow);
    m_counting.setSingleShot(true);
    connect(&m_counting, &QTimer::timeout, this, &SkillDraft::count);
    connect(document, &QTextDocument::contentsChanged, this, &SkillDraft::measure);
    connect(m_model, &AppModel::selectedSkillChanged, this, &SkillDraft::followSkill);
    connect(m_model, &AppModel::isWorkingChanged, this, &SkillDraft::followLibrary);
    followSkill();
}

void SkillDraft::check(const QJSValue &action)
{
    checkText(this, m_model, action);
}

QCoro::Task<> SkillDraft::checkText(QPointer<SkillDraft> draft, AppModel *model, QJSValue action)
{
    co_await lookForChanges(draft, model);
    if (draft.isNull())
        co_return;
    if (draft->m_standing == Current)
        action.call();
    else
        draft->refuse();
}

void SkillDraft::save()
{
    if (m_isSaving)
        return;
    m_isSaving = true;
    m_sentText = m_text->text();
    saveText(this, m_model, m_sentText);
}

QCoro::Task<> SkillDraft::saveText(QPointer<SkillDraft> draft, AppModel *model, QString text)
{
    co_await lookForChanges(draft, model);
    if (draft.isNull())
        co_return;
    if (draft->m_standing != Current) {
        draft->refuse();
        co_return;
    }
    const bool succeeded = co_await model->saveSelectedSkill(std::move(text));
    if (!draft.isNull())
        draft->conclude(succeeded);
}

/// Sees whether "SKILL.md" still holds the saved text. The service compares revisions, and whoever edits the
/// file in place leaves the revision as it is.
QCoro::Task<> SkillDraft::lookForChanges(QPointer<SkillDraft> draft, AppModel *model)
{
    std::optional<QByteArray> bytes;
    try {
        bytes = co_await model->inspector().readFile(draft->m_skillID, std::nullopt, u"SKILL.md"_s);
    } catch (const std::exception &) {
        co_return; // the save tells why
    }
    if (draft.isNull() || !bytes || *bytes == draft->m_savedText.toUtf8())
        co_return;
    const bool isRead = co_await model->refreshSelectedSkill();
    if (!draft.isNull() && !isRead)
        draft->setStanding(Stale); // whatever it is, it is not the text that was saved
}

/// A save would replace what isn't known here.
void SkillDraft::refuse()
{
    m_isSaving = false;
    Q_EMIT saveFailed();
}

void SkillDraft::conclude(bool succeeded)
{
    m_isSaving = false;
    if (succeeded) {
        Q_EMIT saved();
        return;
    }
    const QString errorCase = m_model->errorCase();
    if (errorCase == QLatin1StringView(WorkspaceErrorCase::RevisionConflict::name))
        setStanding(Stale);
    else if (errorCase == QLatin1StringView(WorkspaceErrorCase::SkillNotFound::name))
        setStanding(Gone);
    else if (m_model->isSynchronizationIncomplete())
        m_model->refreshSelectedSkill(); // the text itself is saved
    Q_EMIT saveFailed();
}

void SkillDraft::reload()
{
    reloadText(this, m_model);
}

QCoro::Task<> SkillDraft::reloadText(QPointer<SkillDraft> draft, AppModel *model)
{
    const bool succeeded = co_await model->refreshSelectedSkill();
    if (draft.isNull())
        co_return;
    if (succeeded)
        draft->take(model->selectedSkill()->skillMD);
    else
        model->reload(); // which tells why
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
    } else if (KeptDraft::digestOf(skill->skillMD) == m_baseDigest) {
        adopt(skill->skillMD);
    } else if (!m_isModified || skill->skillMD == m_sentText || !m_text->differsFrom(skill->skillMD)) {
        m_isModified ? adopt(skill->skillMD) : take(skill->skillMD);
    } else {
        setStanding(Stale);
    }
}

void SkillDraft::begin(const SkillDetail &skill)
{
    m_keeper->stop();
    m_skillID = skill.manifest.id;
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
    const std::optional<KeptDraft> found = m_model->foundDraft(m_skillID);
    m_keeper->begin(m_skillID, found);
    if (!found)
        return;
    if (!m_text->differsFrom(found->text)) {
        m_keeper->forget();
        return;
    }
    m_text->replace(found->text);
    setFoundMoment(Wording::dayAndTime(found->keptAt, QDateTime::currentDateTimeUtc()));
    if (found->baseDigest != m_baseDigest) {
        m_baseDigest = found->baseDigest;
        setStanding(Stale);
    }
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
    m_baseDigest = KeptDraft::digestOf(text);
    setStanding(Current);
    measure();
}

/// Sees, once an operation is over, whether the skill is still what it was.
void SkillDraft::followLibrary()
{
    if (m_model->isWorking() || !m_model->selectedSkill() || !m_model->overview())
        return;
    const QList<SkillSummary> skills = m_model->overview()->skills;
    if (std::ranges::find(skills, m_skillID, &SkillSummary::id) == skills.end()) {
        setStanding(Gone);
        return;
    }
    if (m_standing == Gone)
        setStanding(Current);
    m_model->refreshSelectedSkill();
}

void SkillDraft::measure()
{
    setModified(m_text->differsFrom(m_savedText));
    m_isModified ? m_keeper->keepSoon() : settle();
    m_counting.start();
}

/// Nothing is unsaved any more. New edits begin with the saved text, whatever the former ones began with.
void SkillDraft::settle()
{
    m_keeper->forget();
    setFoundMoment({});
    const std::optional<SkillDetail> skill = m_model->selectedSkill();
    if (m_standing == Stale && skill && skill->skillMD == m_savedText)
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

void SkillDraft::setStanding(Standing standing)
{
    if (std::exchange(m_standing, standing) != standing)
        Q_EMIT standingChanged();
}

} // namespace vornel

#include "SkillDraft.h"

#include <VORNELCore/LocaleText.h>
#include <VORNELCore/VORNELWorkspaceError.h>

#include <QClipboard>
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
    m_counting.setSingleShot(true);
    connect(&m_counting, &QTimer::timeout, this, &SkillDraft::count);
    connect(document, &QTextDocument::contentsChanged, this, &SkillDraft::measure);
    connect(m_model, &AppModel::selectedSkillChanged, this, &SkillDraft::followSkill);
    connect(m_model, &AppModel::isWorkingChanged, this, &SkillDraft::followLibrary);
    followSkill();
}

void SkillDraft::save()
{
    if (m_standing == Current) {
        m_sentText = m_text->text();
        saveText(this, m_model, m_sentText);
    } else {
        Q_EMIT saveFailed(); // it would replace what isn't known here
    }
}

QCoro::Task<> SkillDraft::saveText(QPointer<SkillDraft> draft, AppModel *model, QString text)
{
    const bool succeeded = co_await model->saveSelectedSkill(std::move(text));
    if (!draft.isNull())
        draft->conclude(succeeded);
}

void SkillDraft::conclude(bool succeeded)
{
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
    if (!skill)
        return;
    if (skill->manifest.id != m_skillID) {
        begin(*skill);
    } else if (skill->skillMD == m_savedText) {
        setStanding(Current);
    } else if (!m_isModified || skill->skillMD == m_sentText || !m_text->differsFrom(skill->skillMD)) {
        m_isModified ? adopt(skill->skillMD) : take(skill->skillMD);
    } else {
        setStanding(Stale);
    }
}

void SkillDraft::begin(const SkillDetail &skill)
{
    m_skillID = skill.manifest.id;
    m_text->begin(skill.skillMD);
    adopt(skill.skillMD);
    count();
    Q_EMIT begun();
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
    m_counting.start();
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

void SkillDraft::setStanding(Standing standing)
{
    if (std::exchange(m_standing, standing) != standing)
        Q_EMIT standingChanged();
}

} // namespace vornel

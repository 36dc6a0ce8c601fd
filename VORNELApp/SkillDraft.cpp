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
        m_model->departure()->setGuarded(false);
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
    saveText(this, m_model, m_text->text());
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
    else if (errorCase == QLatin1StringView(WorkspaceErrorCase::PartialSync::name))
        m_model->refreshSelectedSkill(); // the text itself is saved
    Q_EMIT saveFailed();
}

void SkillDraft::reload()
{
    reloadText(this, m_model);
}

QCoro::Task<> SkillDraft::reloadText(QPointer<SkillDraft> draft, AppModel *model)
{
    draft->m_takesNextText = true;
    const bool succeeded = co_await model->refreshSelectedSkill();
    if (!draft.isNull())
        draft->m_takesNextText = false;
    if (!succeeded)
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

/// Takes over what the model shows now.
void SkillDraft::followSkill()
{
    const std::optional<SkillDetail> skill = m_model->selectedSkill();
    if (!skill)
        return;
    const bool isSameSkill = skill->manifest.id == m_skillID;
    const bool hasNewText = !isSameSkill || skill->skillMD != m_savedText;
    const bool keepsEdits = isSameSkill && m_isModified && !m_takesNextText;
    m_skillID = skill->manifest.id;
    m_savedText = skill->skillMD;
    setStanding(Current);
    if (!isSameSkill)
        m_text->begin(m_savedText);
    else if (hasNewText && !keepsEdits && m_text->text() != m_savedText)
        m_text->replace(m_savedText);
    measure();
    if (!isSameSkill) {
        count();
        Q_EMIT begun();
    }
}

/// Sees, once an operation is over, what it tells about the skill.
void SkillDraft::followLibrary()
{
    const std::optional<SkillDetail> skill = m_model->selectedSkill();
    if (m_model->isWorking() || !skill || !m_model->overview())
        return;
    const QList<SkillSummary> skills = m_model->overview()->skills;
    const auto found = std::ranges::find(skills, m_skillID, &SkillSummary::id);
    if (found == skills.end())
        setStanding(Gone);
    else if (found->revision != skill->manifest.revision && m_isModified)
        setStanding(Stale);
    else if (found->revision != skill->manifest.revision)
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
    m_model->departure()->setGuarded(isModified);
    if (std::exchange(m_isModified, isModified) != isModified)
        Q_EMIT isModifiedChanged();
}

void SkillDraft::setStanding(Standing standing)
{
    if (std::exchange(m_standing, standing) != standing)
        Q_EMIT standingChanged();
}

} // namespace vornel

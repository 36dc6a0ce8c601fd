#include "SkillDraft.h"

#include <VORNELCore/Library/LocaleText.h>
#include <VORNELCore/Library/Wording.h>

#include <QClipboard>
#include <QGuiApplication>

#include <utility>

namespace vornel {

SkillDraft::SkillDraft(DraftKeeping &drafts) : m_drafts(drafts)
{
    m_counting.setSingleShot(true);
    connect(&m_counting, &QTimer::timeout, this, &SkillDraft::count);
}

void SkillDraft::attach(QTextDocument *document)
{
    if (isAttached())
        detach();
    m_document = document;
    m_text.emplace(document);
    m_keeper.emplace(m_drafts, [this] { return unsavedText(text()); });
    connect(&*m_keeper, &DraftKeeper::failureChanged, this, &SkillDraft::keepingFailureChanged);
    connect(document, &QTextDocument::contentsChanged, this, &SkillDraft::measure);
    connect(document, &QObject::destroyed, this, &SkillDraft::detach);
}

void SkillDraft::detach()
{
    m_document->disconnect(this);
    m_document = nullptr;
    m_counting.stop();
    m_keeper.reset();
    m_text.reset();
    m_skillID = {};
    m_standing = Current;
    m_foundMoment.clear();
    m_lookFailure.clear();
    m_isModified = false;
    Q_EMIT changed();
}

void SkillDraft::begin(const SkillDetail &skill, const FoundDraft &found)
{
    m_keeper->stop();
    m_skillID = skill.manifest.id;
    m_diskText = skill.skillMD;
    m_sentText.reset();
    m_isSaving = false;
    m_text->begin(skill.skillMD);
    adopt(skill.skillMD);
    takeUp(found);
    count();
    Q_EMIT changed();
    Q_EMIT begun();
}

/// An unsaved text that was found becomes an edit, so that whatever is typed continues it, and undoing leads
/// back to the saved one.
void SkillDraft::takeUp(const FoundDraft &found)
{
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

UnsavedText SkillDraft::unsavedText(const QString &text) const
{
    return {text, m_otherBase.isEmpty() ? m_savedText : QString(), m_otherBase};
}

std::optional<UnsavedText> SkillDraft::edits() const
{
    return m_isModified ? std::optional(unsavedText(text())) : std::nullopt;
}

void SkillDraft::follow(const SkillDetail &skill)
{
    m_diskText = skill.skillMD;
    if (m_otherBase.isEmpty() && m_diskText == m_savedText)
        adopt(m_diskText);
    else if (isSaved() || m_diskText == m_sentText || !m_text->differsFrom(m_diskText))
        m_isModified ? adopt(m_diskText) : take(m_diskText);
    else
        setStanding(Stale);
}

void SkillDraft::followPresence(bool isPresent, const SkillDetail &skill)
{
    if (!isPresent) {
        setStanding(Gone);
    } else if (m_standing == Gone) { // it may have moved on before it went
        const bool isSame = m_otherBase.isEmpty() && skill.skillMD == m_savedText;
        setStanding(isSame ? Current : Stale);
    }
}

void SkillDraft::stopKeeping()
{
    m_keeper->stop();
}

void SkillDraft::beginSaving(const QString &text)
{
    m_isSaving = true;
    m_sentText = text;
}

void SkillDraft::endSaving(bool isSaved)
{
    m_isSaving = false;
    if (!isSaved)
        m_sentText.reset();
}

void SkillDraft::take(const QString &text)
{
    if (m_text->differsFrom(text))
        m_text->replace(text);
    adopt(text);
}

void SkillDraft::adopt(const QString &text, const QByteArray &bytes)
{
    m_savedText = text;
    m_knownBytes = bytes;
    m_otherBase.clear();
    if (!m_isSaving || text == m_sentText) // else what is being saved is still to come
        m_sentText.reset();
    setStanding(Current);
    measure();
}

void SkillDraft::keepNow()
{
    if (m_keeper)
        m_keeper->keepNow();
}

void SkillDraft::discard()
{
    m_text->replace(m_savedText);
}

void SkillDraft::copy() const
{
    QGuiApplication::clipboard()->setText(text());
}

void SkillDraft::measure()
{
    setModified(m_text->differsFrom(m_savedText));
    m_isModified ? m_keeper->keepSoon() : settle();
    m_counting.start();
    Q_EMIT edited();
}

/// There are no edits any more. The next ones begin with the saved text, also where recovered ones did not.
void SkillDraft::settle()
{
    m_keeper->forget();
    setFoundMoment({});
    if (!m_otherBase.isEmpty() && m_standing == Stale && m_diskText == m_savedText)
        adopt(m_diskText);
}

void SkillDraft::count()
{
    const int count = LocaleText::characterCount(text());
    if (std::exchange(m_characterCount, count) != count)
        Q_EMIT characterCountChanged();
}

void SkillDraft::setModified(bool isModified)
{
    if (std::exchange(m_isModified, isModified) != isModified)
        Q_EMIT changed();
}

void SkillDraft::setFoundMoment(const QString &moment)
{
    if (std::exchange(m_foundMoment, moment) != moment)
        Q_EMIT changed();
}

void SkillDraft::setStanding(Standing standing)
{
    if (std::exchange(m_standing, standing) != standing)
        Q_EMIT changed();
}

} // namespace vornel

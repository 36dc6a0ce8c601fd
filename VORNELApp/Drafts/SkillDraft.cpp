#include "SkillDraft.h"

#include <VORNELCore/Library/LocaleText.h>
#include <VORNELCore/Library/Wording.h>
#include <VORNELCore/Text/Digest.h>

#include <QClipboard>
#include <QGuiApplication>

#include <utility>

namespace vornel {

SkillDraft::SkillDraft(DraftKeeping &drafts) : m_drafts(drafts)
{
    m_counting.setSingleShot(true);
    connect(&m_counting, &QTimer::timeout, this, &SkillDraft::count);
    connect(&m_files, &FileDrafts::changed, this, &SkillDraft::changed);
    connect(&m_files, &FileDrafts::edited, this, &SkillDraft::followFiles);
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
    m_isTextModified = false;
    m_files.begin({});
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
    m_files.begin(found.draft ? found.draft->files : QList<UnsavedFile>());
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
    const bool isTextEdit = isEditOfText(*found.draft);
    if (isTextEdit && found.isStale)
        m_otherBase = found.draft->baseDigest;
    m_keeper->begin(m_skillID, unsavedText(isTextEdit ? found.draft->text : m_savedText));
    if (isTextEdit)
        m_text->replace(found.draft->text);
    if (!isModified()) {
        m_keeper->forget();
        return;
    }
    setFoundMoment(Wording::dayAndTime(found.draft->keptAt, QDateTime::currentDateTimeUtc()));
    if (isTextEdit && found.isStale)
        setStanding(Stale);
}

/// A draft that was kept for other files holds the text with which they began.
bool SkillDraft::isEditOfText(const KeptDraft &draft) const
{
    const bool isOfFiles = !draft.files.isEmpty() && sha256Of(draft.text.toUtf8()) == draft.baseDigest;
    return !isOfFiles && m_text->differsFrom(draft.text);
}

UnsavedText SkillDraft::unsavedText(const QString &text) const
{
    return {text, m_otherBase.isEmpty() ? m_savedText : QString(), m_otherBase, m_files.edits()};
}

std::optional<UnsavedText> SkillDraft::edits() const
{
    return isModified() ? std::optional(unsavedText(text())) : std::nullopt;
}

void SkillDraft::follow(const SkillDetail &skill)
{
    m_diskText = skill.skillMD;
    if (m_otherBase.isEmpty() && m_diskText == m_savedText)
        adopt(m_diskText);
    else if (isTextSaved() || m_diskText == m_sentText || !m_text->differsFrom(m_diskText))
        m_isTextModified ? adopt(m_diskText) : take(m_diskText);
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
    m_files.beginSaving();
}

void SkillDraft::endSaving(bool isSaved)
{
    m_isSaving = false;
    if (!isSaved)
        m_sentText.reset();
    m_files.endSaving(isSaved);
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
    m_files.discard();
}

void SkillDraft::copy() const
{
    QGuiApplication::clipboard()->setText(text());
}

void SkillDraft::measure()
{
    setTextModified(m_text->differsFrom(m_savedText));
    keep();
    m_counting.start();
    Q_EMIT edited();
}

void SkillDraft::followFiles()
{
    keep();
    Q_EMIT edited();
}

void SkillDraft::keep()
{
    if (m_keeper)
        isModified() ? m_keeper->keepSoon() : settle();
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

void SkillDraft::setTextModified(bool isModified)
{
    if (std::exchange(m_isTextModified, isModified) != isModified)
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

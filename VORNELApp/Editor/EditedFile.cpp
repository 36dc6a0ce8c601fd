#include "EditedFile.h"

#include <VORNELCore/Text/Digest.h>

#include <QScopedValueRollback>

namespace vornel {

void EditedFile::componentComplete()
{
    m_text.emplace(m_document->textDocument());
    connect(m_content, &SkillFileContent::changed, this, &EditedFile::follow);
    connect(m_document->textDocument(), &QTextDocument::contentsChanged, this, &EditedFile::measure);
    connect(m_drafts, &FileDrafts::changed, this, &EditedFile::followDrafts);
    connect(m_drafts, &FileDrafts::edited, this, &EditedFile::changed);
    connect(m_drafts, &FileDrafts::saved, this, &EditedFile::conclude);
    connect(m_drafts, &FileDrafts::discarded, this, &EditedFile::takeDisk);
    follow();
}

bool EditedFile::isReadOnly() const
{
    return m_path.section(u'/', -1) == u"vornel.json";
}

bool EditedFile::isStale() const
{
    const auto edits = isShown() ? m_drafts->find(m_path) : std::nullopt;
    return edits && edits->baseDigest != m_digest;
}

/// What is typed of a file stays to be seen, whatever has become of the file.
void EditedFile::follow()
{
    const QString path = m_content->path();
    const auto edits = m_drafts->find(path);
    const bool isRead = m_content->kind() != SkillFileContent::Nothing;
    const bool isText = m_content->kind() == SkillFileContent::Text;
    if (isRead && !path.isEmpty() && (isText || edits))
        show(edits);
    else if (isRead || path != m_path)
        close();
}

void EditedFile::show(const std::optional<UnsavedFile> &edits)
{
    const bool isOther = m_path != m_content->path();
    if (!isOther && m_digest == m_content->digest())
        return;
    m_path = m_content->path();
    m_digest = m_content->digest();
    m_savedText = m_content->text();
    const QScopedValueRollback filling(m_isFilling, true);
    if (isOther)
        begin();
    if (edits && edits->text == m_savedText && m_content->kind() == SkillFileContent::Text)
        m_drafts->forget(m_path);
    if (const QString text = edits ? edits->text : m_savedText; m_text->differsFrom(text))
        m_text->replace(text);
    Q_EMIT changed();
    if (isOther)
        Q_EMIT begun();
}

/// What was given up can be brought back by undoing.
void EditedFile::begin()
{
    m_text->begin(m_savedText);
    const std::optional<QString> givenUp = m_drafts->givenUp(m_path);
    if (!givenUp || *givenUp == m_savedText)
        return;
    m_text->replace(*givenUp);
    m_text->replace(m_savedText);
}

/// Without edits, the document shows what the file holds.
void EditedFile::followDrafts()
{
    if (isShown() && !isModified() && m_text->differsFrom(m_savedText)) {
        const QScopedValueRollback filling(m_isFilling, true);
        m_text->replace(m_savedText);
    }
    Q_EMIT changed();
}

void EditedFile::close()
{
    const QScopedValueRollback filling(m_isFilling, true);
    m_path.clear();
    m_text->begin({});
    Q_EMIT changed();
}

void EditedFile::measure()
{
    if (m_isFilling || !isShown())
        return;
    const auto edits = m_drafts->find(m_path);
    if (m_text->differsFrom(m_savedText))
        m_drafts->edit({m_path, m_text->text(), edits ? edits->baseDigest : m_digest});
    else
        m_drafts->forget(m_path);
}

/// The file is read again only after the next text may have been typed.
void EditedFile::conclude(const QString &path, const QString &text)
{
    if (path != m_path)
        return;
    m_savedText = text;
    m_digest = sha256Of(text.toUtf8());
}

void EditedFile::keepMine()
{
    m_drafts->rebase(m_path, m_digest);
}

void EditedFile::takeDisk()
{
    if (!isShown() || !isModified())
        return;
    if (m_content->kind() == SkillFileContent::Text) {
        m_text->replace(m_savedText);
    } else {
        m_drafts->remove(m_path);
        close();
    }
}

} // namespace vornel

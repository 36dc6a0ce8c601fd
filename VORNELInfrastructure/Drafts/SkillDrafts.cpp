#include "SkillDrafts.h"

#include <VORNELCore/Records/RecordJson.h>
#include <VORNELCore/Records/SerializedForms.h>
#include <VORNELCore/Records/SkillFiles.h>
#include <VORNELCore/Text/Digest.h>
#include <VORNELInfrastructure/Disk/BestEffort.h>
#include <VORNELInfrastructure/Disk/FileOperations.h>
#include <VORNELInfrastructure/Disk/TreeOperations.h>
#include <VORNELInfrastructure/Workspace/UnfinishedParts.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QRegularExpression>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vornel {

namespace fs = std::filesystem;

namespace {

/// The draft in the file of this name; nothing for any other file.
std::optional<DraftFile> draftFile(const fs::path &folder, const std::string &name)
{
    static const QRegularExpression shape(uR"(\A([0-9A-F-]{36})(-unreadable-[0-9A-F-]{36})?\.json\z)"_s);
    const auto match = shape.match(QString::fromStdString(name));
    const auto id = match.hasMatch() ? uuidFromText(match.captured(1)) : std::nullopt;
    if (!id)
        return std::nullopt;
    return DraftFile{*id, match.hasCaptured(2), folder / name};
}

KeptDraft draftOf(const UnsavedText &text)
{
    const QString base = text.baseDigest.isEmpty() ? sha256Of(text.baseText.toUtf8()) : text.baseDigest;
    return {.text = text.text, .baseDigest = base, .keptAt = currentInstant(), .files = text.files};
}

/// A draft of the first version as one of the second.
QByteArray withFiles(const QByteArray &document)
{
    QJsonObject draft = QJsonDocument::fromJson(document).object();
    if (draft.value(u"schemaVersion"_s) != 1)
        return document;
    draft.insert(u"schemaVersion"_s, KeptDraft::currentVersion);
    draft.insert(u"files"_s, QJsonArray());
    return RecordJson::document(draft);
}

} // namespace

SkillDrafts::SkillDrafts(FileSystem &files, const fs::path &bookkeeping)
    : m_files(files), m_bookkeeping(bookkeeping), m_folder(bookkeeping / "drafts")
{}

void SkillDrafts::keep(const QUuid &id, const UnsavedText &text)
{
    const fs::path file = placeOf(id);
    const QByteArray document = RecordJson::document(RecordJson::encode(draftOf(text)));
    if (document.size() > SkillFiles::sizeLimit)
        throw fs::filesystem_error("write", file, std::make_error_code(std::errc::file_too_large));
    m_files.openFolder(m_bookkeeping); // throws where there is no workspace, which isn't created here
    createFolders(m_files, m_folder, Durability::Now);
    if (m_unread.contains(id) && exists(file))
        setAside(id);
    m_unread.remove(id);
    replaceFile(m_files, file, document, Durability::Now);
}

std::optional<KeptDraft> SkillDrafts::read(const QUuid &id)
{
    const fs::path file = placeOf(id);
    m_unread.insert(id);
    std::optional<KeptDraft> draft;
    if (exists(file)) {
        draft = decoded(file);
        if (!draft)
            setAside(id);
    }
    m_unread.remove(id);
    return draft;
}

void SkillDrafts::discard(const QUuid &id)
{
    if (!m_unread.contains(id) && exists(placeOf(id)))
        removeTree(m_files, placeOf(id));
}

QList<DraftFile> SkillDrafts::list() const
{
    QList<DraftFile> found;
    if (!exists(m_folder))
        return found;
    const Folder folder = m_files.openFolder(m_folder);
    for (const FolderEntry &entry : m_files.list(folder)) {
        if (isUnfinished(entry.name))
            bestEffort([&] { removeIfLeft({folder, entry.name}); });
        else if (const auto file = draftFile(m_folder, entry.name))
            found.append(*file);
    }
    std::ranges::sort(found, {}, &DraftFile::place);
    return found;
}

/// Another window may still be writing a file that is younger than a minute.
void SkillDrafts::removeIfLeft(const Place &unfinished) const
{
    const auto changed = m_files.changedAt(unfinished.folder, unfinished.name);
    if (changed && changed->secsTo(QDateTime::currentDateTimeUtc()) > 60)
        removeTree(m_files, unfinished);
}

void SkillDrafts::remove(const DraftFile &file) const
{
    const fs::path place = m_folder / file.place.filename();
    if (draftFile(m_folder, place.filename()) && exists(place))
        removeTree(m_files, place);
}

fs::path SkillDrafts::placeOf(const QUuid &id) const
{
    return m_folder / pathFromText(uuidText(id) + u".json"_s);
}

std::optional<KeptDraft> SkillDrafts::decoded(const fs::path &file) const
{
    if (m_files.kindAt(file) != FileKind::Regular)
        return std::nullopt;
    const QByteArray document = readFile(m_files, file, SkillFiles::sizeLimit);
    const auto draft = RecordJson::decodeDocument<KeptDraft>(withFiles(document));
    return draft && draft->schemaVersion == KeptDraft::currentVersion ? draft : std::nullopt;
}

void SkillDrafts::setAside(const QUuid &id) const
{
    const Folder folder = m_files.openFolder(m_folder);
    const QString name = uuidText(id) + u"-unreadable-"_s + uuidText(QUuid::createUuid()) + u".json"_s;
    m_files.rename({folder, placeOf(id).filename()}, {folder, name.toStdString()}, RenameMode::ToFreePlace);
}

} // namespace vornel

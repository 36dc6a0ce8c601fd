#include "SkillDrafts.h"

#include "BestEffort.h"
#include "FileOperations.h"
#include "SkillFiles.h"
#include "TreeOperations.h"

#include <VORNELCore/RecordJson.h>
#include <VORNELCore/SerializedForms.h>

using namespace Qt::StringLiterals;

namespace vornel {

namespace fs = std::filesystem;

void SkillDrafts::keep(const QUuid &id, const KeptDraft &draft) const
{
    const fs::path file = m_config.draftOf(id);
    const QByteArray document = RecordJson::document(RecordJson::encode(draft));
    if (document.size() > SkillFiles::sizeLimit)
        throw fs::filesystem_error("write", file, std::make_error_code(std::errc::file_too_large));
    createFolders(m_files, m_config.drafts(), Durability::Now);
    replaceFile(m_files, file, document, Durability::Now);
}

std::optional<KeptDraft> SkillDrafts::read(const QUuid &id) const
{
    if (!exists(id))
        return std::nullopt;
    std::optional<KeptDraft> draft;
    bestEffort([&] {
        draft = RecordJson::decodeDocument<KeptDraft>(
            readFile(m_files, m_config.draftOf(id), SkillFiles::sizeLimit));
    });
    if (!draft)
        setAside(id);
    return draft;
}

bool SkillDrafts::exists(const QUuid &id) const
{
    return m_files.kindAt(m_config.draftOf(id)).has_value();
}

void SkillDrafts::discard(const QUuid &id) const
{
    if (exists(id))
        removeTree(m_files, m_config.draftOf(id));
}

void SkillDrafts::setAside(const QUuid &id) const
{
    const Folder folder = m_files.openFolder(m_config.drafts());
    const QString name = uuidText(id) + u"-unreadable-"_s + uuidText(QUuid::createUuid()) + u".json"_s;
    m_files.rename({folder, m_config.draftOf(id).filename()}, {folder, name.toStdString()},
                   RenameMode::ToFreePlace);
}

} // namespace vornel

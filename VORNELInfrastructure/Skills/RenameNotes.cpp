#include "RenameNotes.h"

#include <VORNELCore/Records/RecordJson.h>
#include <VORNELCore/Records/SerializedForms.h>
#include <VORNELInfrastructure/Disk/BestEffort.h>
#include <VORNELInfrastructure/Disk/FileOperations.h>
#include <VORNELInfrastructure/Disk/TreeOperations.h>

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace vornel {

namespace fs = std::filesystem;

void RenameNotes::add(const Note &note) const
{
    replaceFile(m_files, placeOf(note.id), RecordJson::document(RecordJson::encode(note.event)),
                Durability::Now);
}

void RenameNotes::remove(const QUuid &id) const
{
    removeTree(m_files, placeOf(id));
}

std::vector<RenameNotes::Note> RenameNotes::all() const
{
    constexpr std::int64_t longest = 10'000;
    static const QRegularExpression shape(uR"(\Arenaming-([0-9A-F-]{36})\.json\z)"_s);
    std::vector<Note> notes;
    if (m_files.kindAt(m_config.events()) != FileKind::Directory)
        return notes;
    for (const FolderEntry &entry : m_files.list(m_files.openFolder(m_config.events()))) {
        const auto match = shape.match(QString::fromStdString(entry.name));
        const auto id = match.hasMatch() ? uuidFromText(match.captured(1)) : std::nullopt;
        if (!id)
            continue;
        RenameEvent event;
        bestEffort([&] {
            const QByteArray bytes = readFile(m_files, m_config.events() / entry.name, longest);
            event = RecordJson::decodeDocument<RenameEvent>(bytes).value_or(RenameEvent());
        });
        notes.push_back({*id, event});
    }
    return notes;
}

fs::path RenameNotes::placeOf(const QUuid &id) const
{
    return m_config.events() / pathFromText(u"renaming-"_s + uuidText(id) + u".json"_s);
}

} // namespace vornel

#include "TrashMoments.h"

#include <VORNELCore/Records/RecordJson.h>
#include <VORNELCore/Records/SerializedForms.h>
#include <VORNELInfrastructure/Disk/BestEffort.h>
#include <VORNELInfrastructure/Disk/FileOperations.h>
#include <VORNELInfrastructure/Disk/TreeOperations.h>

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace vornel {

namespace fs = std::filesystem;

void TrashMoments::note(const QUuid &id) const
{
    bestEffort([&] {
        replaceFile(m_files, placeOf(id),
                    RecordJson::document(RecordJson::encode(TrashEvent{currentInstant()})), Durability::Now);
    });
}

void TrashMoments::forget(const QUuid &id) const
{
    bestEffort([&] { removeTree(m_files, placeOf(id)); });
}

std::optional<QDateTime> TrashMoments::of(const QUuid &id) const
try {
    constexpr std::int64_t longest = 1'000;
    const auto event = RecordJson::decodeDocument<TrashEvent>(readFile(m_files, placeOf(id), longest));
    return event ? std::optional(event->trashedAt) : std::nullopt;
} catch (const std::exception &) {
    return std::nullopt;
}

std::vector<fs::path> TrashMoments::strays() const
{
    static const QRegularExpression shape(uR"(\Atrashed-([0-9A-F-]{36})\.json\z)"_s);
    std::vector<fs::path> found;
    const Folder trash = m_files.openFolder(m_config.trash());
    for (const FolderEntry &entry : m_files.list(m_files.openFolder(m_config.events()))) {
        const auto match = shape.match(QString::fromStdString(entry.name));
        const auto id = match.hasMatch() ? uuidFromText(match.captured(1)) : std::nullopt;
        if (id && !m_files.kindAt(trash, uuidText(*id).toStdString()))
            found.push_back(m_config.events() / entry.name);
    }
    return found;
}

fs::path TrashMoments::placeOf(const QUuid &id) const
{
    return m_config.events() / pathFromText(u"trashed-"_s + uuidText(id) + u".json"_s);
}

} // namespace vornel

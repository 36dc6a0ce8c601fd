#include "Locating.h"

#include <VORNELCore/Records/SerializedForms.h>
#include <VORNELInfrastructure/Disk/BestEffort.h>
#include <VORNELInfrastructure/History/SkillHistory.h>
#include <VORNELInfrastructure/Skills/SkillFolderStore.h>

namespace vornel {

namespace {

namespace fs = std::filesystem;

/// The slug of a skill in the trash; empty where it can be read nowhere.
QString trashedSlug(const Workspace &workspace, const fs::path &folder)
{
    const SkillFolderStore store(workspace);
    QString slug;
    const auto readFrom = [&](const fs::path &place) {
        bestEffort([&] { slug = store.readManifest(place).slug; });
        return !slug.isEmpty();
    };
    const auto id = uuidFromText(pathText(folder.filename()));
    if (readFrom(folder) || !id)
        return slug;
    bestEffort([&] {
        for (const KeptVersion &version : SkillHistory(workspace).ownVersions(*id)) {
            if (readFrom(workspace.config.historyOf(*id) / version.entry))
                return;
        }
    });
    return slug;
}

} // namespace

FailurePlace placeOf(const Workspace &workspace, const fs::path &folder)
{
    const QString slug =
        folder.parent_path() == workspace.config.trash() ? trashedSlug(workspace, folder) : QString();
    return FailurePlace::ofSkill(slug.isEmpty() ? pathText(folder.filename()) : slug, folder);
}

FailurePlace placeOf(const Workspace & /*workspace*/, const QString &slug)
{
    return FailurePlace::ofSkill(slug);
}

FailurePlace placeOf(const Workspace & /*workspace*/, const OwnFile &file)
{
    return FailurePlace::ofFile(file.path);
}

} // namespace vornel

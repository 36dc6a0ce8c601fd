#include "WorkspaceBootstrap.h"

#include "CrashRecovery.h"
#include "Locating.h"

#include <VORNELCore/Errors/VORNELWorkspaceError.h>
#include <VORNELCore/Records/RecordJson.h>
#include <VORNELCore/Records/SerializedForms.h>
#include <VORNELCore/Records/SkillFiles.h>
#include <VORNELCore/Records/VORNELProduct.h>
#include <VORNELInfrastructure/Categories/CategoryCatalog.h>
#include <VORNELInfrastructure/Disk/FileOperations.h>
#include <VORNELInfrastructure/Skills/SchemaVersion.h>

using namespace Qt::StringLiterals;

namespace vornel {

namespace {

void writeMetadata(const Workspace &workspace)
{
    const WorkspaceMetadata metadata{.schemaVersion = currentSchema,
                                     .workspaceID = QUuid::createUuid(),
                                     .displayName = VORNELProduct::name,
                                     .createdAt = currentInstant(),
                                     .resourceCopyThresholdBytes = SkillFiles::sizeLimit};
    replaceFile(workspace.files, workspace.config.metadata(),
                RecordJson::document(RecordJson::encode(metadata)), Durability::Now);
}

/// Whether a newer version wrote "workspace.json".
bool isNewer(const Workspace &workspace)
{
    return readMetadata(workspace).schemaVersion > currentSchema;
}

} // namespace

void createLayout(const Workspace &workspace)
{
    FileSystem &files = workspace.files;
    const Configuration &config = workspace.config;
    for (const std::filesystem::path &root : config.roots())
        refuseLinkedRoot(files, root);
    if (files.kindAt(config.metadata()) && isNewer(workspace))
        return;
    for (const std::filesystem::path &folder : {config.skills(), config.history(), config.trash(),
                                                config.staging(), config.recovery(), config.events()})
        createFolders(files, folder, Durability::Now);
}

WorkspaceMetadata readMetadata(const Workspace &workspace)
{
    return locating(workspace, OwnFile{workspace.config.metadata()}, [&workspace] {
        const auto metadata = RecordJson::decodeDocument<WorkspaceMetadata>(
            readFile(workspace.files, workspace.config.metadata(), SkillFiles::sizeLimit));
        if (!metadata)
            throw VORNELWorkspaceError::integrityFailure(u"Les métadonnées du workspace sont invalides."_s);
        return *metadata;
    });
}

void refuseNewerWorkspace(const Workspace &workspace)
{
    refuseNewer(readMetadata(workspace).schemaVersion, u"ce workspace"_s);
}

bool isReady(const Workspace &workspace)
{
    const auto exists = [&workspace](const std::filesystem::path &file) {
        return workspace.files.kindAt(file).has_value();
    };
    return exists(workspace.config.metadata()) &&
           (isNewer(workspace) || (exists(workspace.config.categories()) && !needsRecovery(workspace)));
}

void prepareWorkspace(const Workspace &workspace, const Folder & /*lock*/)
{
    if (!workspace.files.kindAt(workspace.config.metadata()))
        writeMetadata(workspace);
    refuseNewerWorkspace(workspace);
    recoverFromCrash(workspace);
    prepareCategoryCatalog(workspace);
}

} // namespace vornel

#include "WorkspaceBootstrap.h"

#include "CategoryCatalog.h"
#include "CrashRecovery.h"
#include "FileOperations.h"
#include "SkillFiles.h"

#include <VORNELCore/RecordJson.h>
#include <VORNELCore/SerializedForms.h>
#include <VORNELCore/VORNELProduct.h>
#include <VORNELCore/VORNELWorkspaceError.h>

using namespace Qt::StringLiterals;

namespace vornel {

namespace {

void prepareMetadata(const Workspace &workspace)
{
    const std::filesystem::path path = workspace.config.metadata();
    if (!workspace.files.kindAt(path)) {
        const WorkspaceMetadata metadata{.schemaVersion = 1,
                                         .workspaceID = QUuid::createUuid(),
                                         .displayName = VORNELProduct::name,
                                         .createdAt = currentInstant(),
                                         .resourceCopyThresholdBytes = SkillFiles::sizeLimit};
        replaceFile(workspace.files, path, RecordJson::document(RecordJson::encode(metadata)),
                    Durability::Now);
    } else if (!RecordJson::decodeDocument<WorkspaceMetadata>(
                   readFile(workspace.files, path, SkillFiles::sizeLimit))) {
        throw VORNELWorkspaceError::integrityFailure(u"Les métadonnées du workspace sont invalides."_s);
    }
}

} // namespace

void createLayout(FileSystem &files, const Configuration &config)
{
    for (const std::filesystem::path &root : config.roots())
        refuseLinkedRoot(files, root);
    for (const std::filesystem::path &folder : {config.skills(), config.history(), config.trash(),
                                                config.staging(), config.recovery(), config.events()})
        createFolders(files, folder, Durability::Now);
}

void prepareWorkspace(const Workspace &workspace)
{
    prepareMetadata(workspace);
    recoverFromCrash(workspace);
    prepareCategoryCatalog(workspace);
}

} // namespace vornel

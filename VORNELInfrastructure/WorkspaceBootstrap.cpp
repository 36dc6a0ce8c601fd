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

void writeMetadata(const Workspace &workspace)
{
    const WorkspaceMetadata metadata{.schemaVersion = 1,
                                     .workspaceID = QUuid::createUuid(),
                                     .displayName = VORNELProduct::name,
                                     .createdAt = currentInstant(),
                                     .resourceCopyThresholdBytes = SkillFiles::sizeLimit};
    replaceFile(workspace.files, workspace.config.metadata(),
                RecordJson::document(RecordJson::encode(metadata)), Durability::Now);
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

void checkMetadata(const Workspace &workspace)
{
    if (!RecordJson::decodeDocument<WorkspaceMetadata>(
            readFile(workspace.files, workspace.config.metadata(), SkillFiles::sizeLimit)))
        throw VORNELWorkspaceError::integrityFailure(u"Les métadonnées du workspace sont invalides."_s);
}

bool isReady(const Workspace &workspace)
{
    const auto exists = [&workspace](const std::filesystem::path &file) {
        return workspace.files.kindAt(file).has_value();
    };
    return exists(workspace.config.metadata()) && exists(workspace.config.categories()) &&
           !needsRecovery(workspace);
}

void prepareWorkspace(const Workspace &workspace, const Folder & /*lock*/)
{
    if (!workspace.files.kindAt(workspace.config.metadata()))
        writeMetadata(workspace);
    checkMetadata(workspace);
    recoverFromCrash(workspace);
    prepareCategoryCatalog(workspace);
}

} // namespace vornel

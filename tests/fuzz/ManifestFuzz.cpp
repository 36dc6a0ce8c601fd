#include "Promise.h"

#include <VORNELCore/Errors/VORNELWorkspaceError.h>
#include <VORNELCore/Errors/WorkspaceValidation.h>
#include <VORNELCore/Records/SerializedForms.h>
#include <VORNELCore/Records/WorkspaceModels.h>
#include <VORNELInfrastructure/Workspace/Configuration.h>

using namespace vornel;
using Fuzz::promise;

namespace {

/// Whether the manifest's slug is refused, or else names a folder right below that of the skills.
bool staysInItsFolder(const SkillManifest &manifest)
{
    const Configuration config{"/workspace", "/claude", "/codex"};
    try {
        WorkspaceValidation::validateSlug(manifest.slug);
    } catch (const VORNELWorkspaceError &) {
        return true;
    }
    const std::filesystem::path folder = config.canonical(manifest.slug);
    return standardizedPath(folder) == folder && folder.parent_path() == config.skills();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray document = Fuzz::bytes(data, size);
    const auto manifest = Fuzz::checkedRecord<SkillManifest>(document);
    if (!manifest)
        return 0;
    const QByteArray written = RecordJson::document(RecordJson::encode(*manifest));
    promise(RecordJson::decodeDocument<SkillManifest>(written) == manifest, "no field changes");
    promise(staysInItsFolder(*manifest), "a slug is the name of a folder");
    promise(manifest->createdAt.isValid() && manifest->createdAt.timeSpec() == Qt::UTC &&
                manifest->updatedAt.isValid() && manifest->updatedAt.timeSpec() == Qt::UTC,
            "instants are in UTC");
    return 0;
}

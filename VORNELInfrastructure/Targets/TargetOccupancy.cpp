#include "TargetOccupancy.h"

#include "TargetFolder.h"

#include <VORNELCore/Errors/ErrorMessage.h>
#include <VORNELCore/Errors/WorkspaceValidation.h>
#include <VORNELCore/Records/SerializedForms.h>
#include <VORNELInfrastructure/Disk/BestEffort.h>
#include <VORNELInfrastructure/Tree/SecureFileTree.h>

using namespace Qt::StringLiterals;

namespace vornel {

QString refusalOfKind(FileKind kind)
{
    switch (kind) {
    case FileKind::Directory:
        return {};
    case FileKind::SymbolicLink:
        return u"C’est un lien."_s;
    case FileKind::Regular:
        return u"C’est un fichier."_s;
    case FileKind::Other:
        break;
    }
    return u"Ce n’est pas un dossier."_s;
}

namespace {

/// Whether a restoration would install just what stands there: then it leaves the folder alone.
bool holdsRestoredSkill(const Workspace &workspace, const TargetPlace &place, const FileTreeSnapshot &content)
{
    bool isSame = false;
    if (!place.restored.isNull()) {
        bestEffort([&] {
            const auto trashed = SecureFileTree::snapshot(
                workspace.files, workspace.config.trashed(place.restored), TreeFilter::excludingManifest);
            isSame = trashed.digest == content.digest;
        });
    }
    return isSame;
}

std::optional<TargetOccupant> occupantOf(const Workspace &workspace, const TargetPlace &place)
{
    const TargetFolder folder(workspace, place.target);
    const std::string name = place.slug.toStdString();
    std::optional<FileKind> kind;
    try {
        WorkspaceValidation::validateSlug(place.slug);
        kind = folder.kindOf(name);
    } catch (const std::exception &) { // the installation will fail for this reason
        return std::nullopt;
    }
    if (!kind || workspace.files.kindAt(workspace.config.canonical(place.slug)))
        return std::nullopt;
    TargetOccupant occupant{place.target, place.slug,
                            workspace.config.target(place.target) / pathFromText(place.slug)};
    occupant.refusal = refusalOfKind(*kind);
    if (occupant.refusal.isEmpty()) {
        try {
            const auto content = folder.snapshot(name);
            if (!content || holdsRestoredSkill(workspace, place, *content))
                return std::nullopt;
        } catch (const std::exception &error) {
            occupant.refusal = errorMessage(error);
        }
    }
    return occupant;
}

} // namespace

QList<TargetOccupant> occupantsOf(const Workspace &workspace, const QList<TargetPlace> &places)
{
    QList<TargetOccupant> found;
    for (const TargetPlace &place : places) {
        if (const auto occupant = occupantOf(workspace, place))
            found.append(*occupant);
    }
    return found;
}

} // namespace vornel

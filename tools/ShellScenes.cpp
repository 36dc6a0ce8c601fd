#include "Scenes.h"

#include <fstream>

using namespace Qt::StringLiterals;
namespace fs = std::filesystem;

namespace vornel {

void photographEmptyDestinations(Photographer &photographer, Studio &studio)
{
    AppModel &model = studio.model();
    studio.quieten();
    model.setSelectedDestination(Destination::needsAttention);
    photographer.take(u"attention-empty"_s);
    model.setSelectedDestination(Destination::trash);
    photographer.take(u"trash-empty"_s);
    model.setSelectedDestination(Destination::library);
}

void photographUndo(const Photographer &photographer, Studio &studio)
{
    AppModel &model = studio.model();
    model.moveSkillsToTrash({studio.idOf(u"veille-technique"_s)});
    studio.settle();
    Studio::rest();
    photographer.take(u"library-undo"_s);
    model.undo();
    studio.settle();
    Studio::rest();
    photographer.take(u"library-redo"_s);
    studio.quieten();
}

void photographError(Photographer &photographer, Studio &studio)
{
    studio.model().restore(QUuid::createUuid());
    studio.settle();
    Studio::rest();
    photographer.take(u"error"_s);
    studio.model().clearError();
}

void photographUnreadable(Photographer &photographer, Studio &studio)
{
    AppModel &model = studio.model();
    const QString slug = model.overview()->skills.at(0).slug;
    const fs::path manifest = studio.path("VORNEL/skills") / slug.toStdString() / "vornel.json";
    const fs::path kept = studio.path("kept.json");
    fs::copy_file(manifest, kept);
    std::ofstream(manifest) << "{";
    model.reload();
    studio.settle();
    Studio::rest();
    photographer.take(u"reading-failed"_s);
    model.retryStart();
    studio.settle();
    photographer.take(u"failure-folder"_s);
    fs::copy_file(kept, manifest, fs::copy_options::overwrite_existing);
    model.retryStart();
    studio.quieten();
    Studio::rest();
}

void photographClosing(Photographer &photographer, Studio &studio)
{
    studio.model().reload();
    photographer.close();
    photographer.takeAtOnce(u"closing"_s);
    studio.settle();
}

} // namespace vornel

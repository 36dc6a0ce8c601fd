#include "Scenes.h"

#include <QCoreApplication>

#include <fstream>

using namespace Qt::StringLiterals;
namespace fs = std::filesystem;

namespace vornel {
namespace {

void resolveCollisions(Stage &stage)
{
    const QList<ImportCollision> collisions = stage.model().importPlan()->collisions;
    for (const ImportCollision &collision : collisions) {
        stage.model().resolveCollision(collision.id, CollisionChoice::claude);
        stage.settle();
    }
}

void photographImport(const Photographer &photographer, Stage &stage)
{
    photographer.takeAtOnce(u"import-scan"_s);
    stage.settle();
    photographer.take(u"import-collisions"_s);
    resolveCollisions(stage);
    photographer.click(u"2 dossiers ignorés"_s);
    photographer.take(u"import-ready"_s);
    photographer.click(u"Ouvrir la bibliothèque"_s);
    while (stage.model().commitProgress() < 0.3)
        QCoreApplication::processEvents();
    photographer.take(u"import-progress"_s);
    stage.settle();
    photographer.take(u"library-confirmation"_s);
}

} // namespace

void photographFailure(Photographer &photographer)
{
    Stage stage(true);
    photographer.watch(stage);
    stage.settle();
    photographer.take(u"failure"_s);
}

void photographImportFailure(Photographer &photographer)
{
    Stage stage;
    photographer.watch(stage);
    stage.settle();
    fs::remove_all(stage.path("claude"));
    std::ofstream(stage.path("claude")) << "pas un dossier";
    for (int page = 1; page <= 4; ++page)
        stage.model().advanceOnboarding();
    stage.settle();
    photographer.take(u"import-failed"_s);
}

void photographOccupiedImport(Photographer &photographer)
{
    Stage stage;
    for (const char *folder : {"codex/migration-sql", "codex/tests-de-charge", "claude/veille-technique"})
        stage.occupy(folder);
    photographer.watch(stage);
    stage.settle();
    for (int page = 1; page <= 4; ++page)
        stage.model().advanceOnboarding();
    stage.settle();
    resolveCollisions(stage);
    Stage::rest();
    photographer.take(u"import-occupied"_s);
    photographer.click(u"Ouvrir la bibliothèque"_s);
    Stage::rest();
    photographer.take(u"import-replace"_s);
}

void photographOnboarding(Photographer &photographer, Stage &stage)
{
    photographer.watch(stage);
    photographer.take(u"launch"_s);
    stage.settle();
    for (int page = 1; page <= 4; ++page) {
        photographer.take(u"onboarding-%1"_s.arg(page));
        stage.model().advanceOnboarding();
    }
    photographImport(photographer, stage);
}

} // namespace vornel

#include "Scenes.h"

#include <QCoreApplication>

#include <chrono>
#include <fstream>

using namespace Qt::StringLiterals;
namespace fs = std::filesystem;

namespace vornel {
namespace {

void resolveCollisions(Studio &studio)
{
    const QList<ImportCollision> collisions = studio.model().importPlan()->collisions;
    for (const ImportCollision &collision : collisions) {
        studio.model().resolveCollision(collision.id, CollisionChoice::claude);
        studio.settle();
    }
}

/// Makes the files of one assistant older than those of the other.
void age(const fs::path &folder)
{
    for (const fs::directory_entry &entry : fs::recursive_directory_iterator(folder)) {
        if (entry.is_regular_file())
            fs::last_write_time(entry, fs::last_write_time(entry) - std::chrono::days(3));
    }
}

void photographImport(const Photographer &photographer, Studio &studio)
{
    photographer.takeAtOnce(u"import-scan"_s);
    studio.settle();
    photographer.take(u"import-collisions"_s);
    photographer.click(u"Comparer…"_s);
    Studio::rest();
    photographer.take(u"import-comparison"_s);
    photographer.press(Qt::Key_Escape);
    Studio::rest();
    resolveCollisions(studio);
    photographer.click(u"2 dossiers ignorés"_s);
    photographer.take(u"import-ready"_s);
    photographer.click(u"Ouvrir la bibliothèque"_s);
    while (studio.model().commitProgress() < 0.3)
        QCoreApplication::processEvents();
    photographer.take(u"import-progress"_s);
    studio.settle();
    photographer.take(u"library-confirmation"_s);
}

/// What the heads of the imported texts would mend.
void photographImportedTexts(const Photographer &photographer, Studio &studio)
{
    studio.quieten();
    Studio::rest();
    photographer.take(u"library-texts"_s);
    photographer.click(u"Reprendre…"_s);
    Studio::rest();
    photographer.take(u"library-texts-sheet"_s);
    photographer.press(Qt::Key_Escape);
    Studio::rest();
    photographer.click(u"Ignorer"_s);
}

} // namespace

void photographFailure(Photographer &photographer)
{
    Studio studio(true);
    photographer.watch(studio);
    studio.settle();
    photographer.take(u"failure"_s);
}

void photographImportFailure(Photographer &photographer)
{
    Studio studio;
    photographer.watch(studio);
    studio.settle();
    fs::remove_all(studio.path("claude"));
    std::ofstream(studio.path("claude")) << "pas un dossier";
    for (int page = 1; page <= 4; ++page)
        studio.model().advanceOnboarding();
    studio.settle();
    photographer.take(u"import-failed"_s);
}

void photographOccupiedImport(Photographer &photographer)
{
    Studio studio;
    for (const char *folder : {"codex/migration-sql", "codex/tests-de-charge", "claude/veille-technique"})
        studio.occupy(folder);
    photographer.watch(studio);
    studio.settle();
    for (int page = 1; page <= 4; ++page)
        studio.model().advanceOnboarding();
    studio.settle();
    resolveCollisions(studio);
    Studio::rest();
    photographer.take(u"import-occupied"_s);
    photographer.click(u"Ouvrir la bibliothèque"_s);
    Studio::rest();
    photographer.take(u"import-replace"_s);
}

void photographOnboarding(Photographer &photographer, Studio &studio)
{
    age(studio.path("claude"));
    studio.occupy("codex/relecture-de-code");
    photographer.watch(studio);
    photographer.take(u"launch"_s);
    studio.settle();
    for (int page = 1; page <= 4; ++page) {
        photographer.take(u"onboarding-%1"_s.arg(page));
        studio.model().advanceOnboarding();
    }
    photographImport(photographer, studio);
    photographImportedTexts(photographer, studio);
}

} // namespace vornel

#include "Scenes.h"

#include <QCoreApplication>

#include <fstream>

using namespace Qt::StringLiterals;
namespace fs = std::filesystem;

namespace vornel {
namespace {

/// Lets copies be missing, edited, outdated and unreadable.
void harmCopies(Studio &studio)
{
    const QList<SkillSummary> skills = studio.model().overview()->skills;
    const auto copy = [&](const char *root, qsizetype number) {
        return studio.path(root) / skills.at(number).slug.toStdString();
    };
    fs::remove_all(copy("codex", 0));
    fs::remove_all(copy("claude", 3));
    for (const qsizetype number : {2, 4, 5})
        std::ofstream(copy("claude", number) / "SKILL.md", std::ios::app) << "\nUne ligne de plus.\n";
    fs::remove_all(copy("codex", 5));
    std::ofstream(copy("codex", 5)) << "pas un dossier";
    std::ofstream(copy("VORNEL/skills", 6) / "SKILL.md", std::ios::app) << "\nUne ligne de plus.\n";
}

void photographBatch(const Photographer &photographer, Studio &studio)
{
    photographer.click(u"Tout synchroniser"_s);
    photographer.await(u"Annuler"_s);
    photographer.take(u"attention-question"_s);
    photographer.press(Qt::Key_Tab);
    photographer.press(Qt::Key_Return);
    while (studio.model().batch()->doneCount() < 1)
        QCoreApplication::processEvents();
    photographer.takeAtOnce(u"attention-progress"_s);
    studio.quieten();
    Studio::rest();
    photographer.take(u"attention-failures"_s);
}

} // namespace

void photographAttention(Photographer &photographer, Studio &studio)
{
    AppModel &model = studio.model();
    harmCopies(studio);
    model.reload();
    studio.quieten();
    model.setSelectedDestination(Destination::needsAttention);
    Studio::rest();
    photographer.take(u"attention"_s);
    photographer.click(u"Synchroniser"_s, u"Audit d’accessibilité"_s);
    photographer.await(u"Fermer"_s);
    Studio::rest();
    photographer.take(u"attention-differences"_s);
    photographer.click(u"Fermer"_s);
    photographer.click(u"Synchroniser"_s, model.overview()->skills.at(5).displayName);
    photographer.await(u"Fermer"_s);
    Studio::rest();
    photographer.take(u"attention-unreadable"_s);
    photographer.click(u"Fermer"_s);
    model.setSearchText(u"introuvable"_s);
    photographer.take(u"attention-no-result"_s);
    model.setSearchText({});
    photographBatch(photographer, studio);
    model.clearError();
    model.setSelectedDestination(Destination::library);
}

} // namespace vornel

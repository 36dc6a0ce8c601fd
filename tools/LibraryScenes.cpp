#include "Scenes.h"

#include <array>
#include <fstream>

using namespace Qt::StringLiterals;
namespace fs = std::filesystem;

namespace vornel {
namespace {

void photographSelection(const Photographer &photographer)
{
    photographer.click(u"Sélectionner"_s);
    for (const QString &name : {u"Migration SQL"_s, u"Relecture de code"_s, u"Revue de sécurité"_s})
        photographer.click(name);
    photographer.take(u"library-selection"_s);
    photographer.click(u"Déplacer"_s);
    photographer.take(u"library-move"_s);
    photographer.press(Qt::Key_Escape);
    photographer.click(u"Propriétés…"_s);
    Studio::rest();
    photographer.take(u"library-properties"_s);
    photographer.press(Qt::Key_Escape);
    Studio::rest();
    photographer.click(u"Supprimer"_s);
    photographer.take(u"library-trash"_s);
    photographer.click(u"Annuler"_s);
    photographer.click(u"Terminer la sélection"_s);
}

void photographFilters(const Photographer &photographer, AppModel &model)
{
    model.setSelectedCategory(u"quality"_s);
    photographer.take(u"library-category"_s);
    photographer.click(u"Filtrer par état"_s);
    photographer.take(u"library-maturity"_s);
    photographer.press(Qt::Key_Escape);
    model.setSelectedCategory({});
    model.setSearchText(u"sécurité"_s);
    photographer.take(u"library-search"_s);
    model.setSearchText(u"introuvable"_s);
    model.setSelectedMaturity(Maturity::ready);
    photographer.take(u"library-no-result"_s);
    model.setSearchText({});
    model.setSelectedMaturity({});
}

/// What assistants have made since the import.
void photographNewSkills(const Photographer &photographer, Studio &studio)
{
    const std::array made{studio.path("claude/revue-d-api"), studio.path("claude/plan-de-tests"),
                          studio.path("codex/glossaire")};
    for (const fs::path &folder : made)
        fs::copy(studio.path("claude/relecture-de-code"), folder);
    studio.model().reload();
    studio.settle();
    Studio::rest();
    photographer.take(u"library-news"_s);
    for (const fs::path &folder : made)
        fs::remove_all(folder);
    studio.model().reload();
    studio.settle();
    Studio::rest();
}

/// What somebody has sent: a skill that is new, one that is there, and one with another text.
void photographAddition(const Photographer &photographer, Studio &studio)
{
    const fs::path given = studio.path("Téléchargements/compétences");
    fs::create_directories(given);
    fs::copy(studio.path("claude/relecture-de-code"), given / "plan-de-tests");
    for (const char *slug : {"revue-de-securite", "relecture-de-code"})
        fs::copy(studio.path("VORNEL/skills") / slug, given / slug, fs::copy_options::recursive);
    std::ofstream(given / "relecture-de-code/SKILL.md", std::ios::app) << "Une remarque de plus.\n";
    studio.occupy("claude/plan-de-tests");

    const QList<QUrl> sources{QUrl::fromLocalFile(QString::fromStdString(given))};
    photographer.hold(sources);
    photographer.take(u"library-drop"_s);
    photographer.letGo();
    photographer.hold({QUrl(u"https://exemple.fr/archive.zip"_s)});
    photographer.take(u"library-drop-refused"_s);
    photographer.letGo();
    studio.model().addition()->begin(sources);
    Studio::rest();
    photographer.take(u"library-addition-open"_s);
    fs::remove_all(studio.path("claude/plan-de-tests"));
    photographer.click(u"Relancer l’analyse"_s);
    Studio::rest();
    photographer.click(u"Comparer…"_s);
    Studio::rest();
    photographer.take(u"library-addition-compared"_s);
    photographer.press(Qt::Key_Escape);
    Studio::rest();
    photographer.click(u"Prendre la nouvelle"_s);
    Studio::rest();
    photographer.take(u"library-addition"_s);
    photographer.press(Qt::Key_Escape);
    Studio::rest();
    studio.model().addition()->begin({QUrl::fromLocalFile(u"/inconnu/archive.zip"_s)});
    Studio::rest();
    photographer.take(u"library-addition-failed"_s);
    photographer.press(Qt::Key_Escape);
    Studio::rest();
}

} // namespace

void photographLibrary(Photographer &photographer, Studio &studio)
{
    photographer.take(u"library"_s);
    photographer.press(Qt::Key_Menu);
    photographer.take(u"library-menu"_s);
    photographer.press(Qt::Key_Escape);
    photographSelection(photographer);
    photographFilters(photographer, studio.model());
    const QString dragged =
        u"vornel-skills:"_s + studio.model().overview()->skills.at(0).id.toString(QUuid::WithoutBraces);
    photographer.hold(dragged, u"Design"_s);
    photographer.take(u"library-drag"_s);
    photographer.letGo();
    photographNewSkills(photographer, studio);
    photographAddition(photographer, studio);
}

void photographEmptyLibrary(Photographer &photographer, Studio &studio)
{
    QSet<QUuid> ids;
    const QList<SkillSummary> skills = studio.model().overview()->skills;
    for (const SkillSummary &skill : skills)
        ids.insert(skill.id);
    studio.model().moveSkillsToTrash(ids);
    studio.quieten();
    photographer.take(u"library-empty"_s);
    studio.occupy(studio.path("claude/trouvaille"));
    std::ofstream(studio.path("claude/trouvaille/SKILL.md")) << "Une compétence d’un assistant.\n";
    photographer.click(u"Importer…"_s);
    studio.settle();
    photographer.click(u"13 dossiers ignorés"_s);
    photographer.take(u"library-import"_s);
    photographer.press(Qt::Key_Escape);
}

} // namespace vornel

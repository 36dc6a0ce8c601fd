#include "Scenes.h"

#include <fstream>

using namespace Qt::StringLiterals;
namespace fs = std::filesystem;

namespace vornel {
namespace {

/// Throws five skills away, and tells their names.
QStringList fillTrash(Studio &studio)
{
    QStringList names;
    QSet<QUuid> ids;
    const QList<SkillSummary> skills = studio.model().overview()->skills;
    for (const SkillSummary &skill : skills.mid(6, 5)) {
        names.append(skill.displayName);
        ids.insert(skill.id);
    }
    studio.model().moveSkillsToTrash(ids);
    studio.quieten();
    return names;
}

void photographQuestions(const Photographer &photographer)
{
    photographer.click(u"Restaurer"_s);
    Studio::rest();
    photographer.take(u"trash-restore"_s);
    photographer.click(u"Annuler"_s);
    photographer.click(u"Supprimer définitivement"_s);
    photographer.take(u"trash-delete"_s);
    photographer.click(u"Annuler"_s);
    photographer.click(u"Vider la corbeille"_s);
    photographer.take(u"trash-clearing"_s);
    photographer.click(u"Annuler"_s);
}

void photographSelectionQuestions(const Photographer &photographer, Studio &studio)
{
    photographer.click(u"Restaurer"_s);
    Studio::rest();
    photographer.take(u"trash-selected-restore"_s);
    photographer.click(u"Annuler"_s);
    for (const SkillSummary &skill : studio.model().overview()->trashedSkills) {
        for (const char *assistant : {"claude", "codex"})
            studio.occupy(fs::path(assistant) / skill.slug.toStdString());
    }
    photographer.click(u"Restaurer"_s);
    Studio::rest();
    photographer.take(u"trash-replace"_s);
    photographer.click(u"Annuler"_s);
    photographer.click(u"Supprimer définitivement"_s);
    photographer.take(u"trash-selected-delete"_s);
    photographer.click(u"Annuler"_s);
}

/// Sets aside an edited copy of an active skill, and a folder of which no skill can be made.
void setAside(Studio &studio)
{
    const std::string slug = studio.model().overview()->skills.first().slug.toStdString();
    const fs::path recovery = "VORNEL/.vornel/recovery";
    const fs::path copy =
        studio.path("") / recovery / ("AAAAAAAA-0000-4000-8000-000000000001-removed-codex-" + slug);
    fs::copy(studio.path("claude") / slug, copy, fs::copy_options::recursive);
    std::ofstream(copy / "SKILL.md", std::ios::app) << "\nUne remarque de Codex.\n";
    studio.occupy(recovery / ("AAAAAAAA-0000-4000-8000-000000000002-claude-" + slug));
}

void photographSetAside(const Photographer &photographer, Studio &studio)
{
    setAside(studio);
    studio.model().reload();
    studio.quieten();
    photographer.click(u"Afficher les copies"_s);
    Studio::rest();
    photographer.take(u"trash-set-aside"_s);
    photographer.click(u"Revenir à cette version"_s);
    photographer.take(u"trash-set-aside-revert"_s);
    photographer.click(u"Annuler"_s);
    photographer.click(u"Restaurer comme nouvelle compétence…"_s);
    photographer.take(u"trash-set-aside-restore"_s);
    photographer.click(u"Annuler"_s);
    photographer.click(u"Afficher"_s);
    Studio::rest();
    photographer.take(u"trash-set-aside-files"_s);
    photographer.click(u"Fermer"_s);
    photographer.click(u"Masquer les copies"_s);
}

void photographHistoryRoom(const Photographer &photographer)
{
    photographer.click(u"Libérer de la place…"_s);
    Studio::rest();
    photographer.take(u"trash-history"_s);
    photographer.click(u"Fermer"_s);
}

} // namespace

void photographTrash(Photographer &photographer, Studio &studio)
{
    const QStringList names = fillTrash(studio);
    studio.model().setSelectedDestination(Destination::trash);
    Studio::rest();
    photographer.take(u"trash"_s);
    photographQuestions(photographer);
    photographSetAside(photographer, studio);
    photographHistoryRoom(photographer);
    photographer.click(u"Sélectionner"_s);
    for (const int number : {0, 2, 3})
        photographer.click(names.at(number));
    photographer.take(u"trash-selection"_s);
    photographSelectionQuestions(photographer, studio);
    photographer.click(u"Terminer la sélection"_s);
    studio.model().setSearchText(u"introuvable"_s);
    photographer.take(u"trash-no-result"_s);
    studio.model().setSearchText({});
}

} // namespace vornel

#include "Scenes.h"

using namespace Qt::StringLiterals;

namespace vornel {
namespace {

void editThirdCategory(const Photographer &photographer)
{
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Return})
        photographer.press(key);
}

void photographCategoryEdits(const Photographer &photographer)
{
    editThirdCategory(photographer);
    photographer.take(u"category-edit"_s);
    photographer.write(u" et déploiement continu de chaque atelier"_s);
    photographer.take(u"category-too-long"_s);
    photographer.click(u"Choisir une autre couleur"_s);
    photographer.take(u"category-color"_s);
    photographer.press(Qt::Key_Escape);
    photographer.click(u"Annuler"_s);
    photographer.take(u"category-unsaved"_s);
    photographer.click(u"Abandonner"_s);
}

void photographOccupiedCreation(const Photographer &photographer, const Studio &studio)
{
    studio.occupy("codex/carnet-de-bord");
    photographer.click(u"Nouvelle compétence"_s);
    photographer.write(u"Carnet de bord"_s);
    Studio::rest();
    photographer.take(u"create-occupied"_s);
    photographer.click(u"Créer"_s);
    Studio::rest();
    photographer.take(u"create-replace"_s);
    photographer.press(Qt::Key_Escape);
    photographer.click(u"Annuler"_s);
    photographer.click(u"Abandonner"_s);
}

} // namespace

void photographCategories(Photographer &photographer)
{
    photographer.click(u"Gérer les catégories"_s);
    photographer.take(u"categories"_s);
    photographer.click(u"Nouvelle"_s);
    photographer.take(u"category-new"_s);
    photographer.write(u"Qualité"_s);
    photographer.take(u"category-taken"_s);
    for (int letter = 0; letter < 7; ++letter)
        photographer.press(Qt::Key_Backspace);
    photographer.click(u"Annuler"_s);
    photographCategoryEdits(photographer);
    photographer.press(Qt::Key_Return);
    photographer.click(u"Supprimer"_s);
    photographer.take(u"category-delete"_s);
    photographer.press(Qt::Key_Escape);
    photographer.press(Qt::Key_Escape);
    photographer.click(u"Fermer"_s);
}

void photographCreation(Photographer &photographer, Studio &studio)
{
    photographer.click(u"Nouvelle compétence"_s);
    photographer.take(u"create"_s);
    photographer.write(u"Audit de sécurité"_s);
    photographer.press(Qt::Key_Tab);
    photographer.write(u"_"_s);
    photographer.take(u"create-invalid"_s);
    photographer.press(Qt::Key_Backspace);
    photographer.press(Qt::Key_Tab);
    photographer.write(u"Relit les points d’entrée d’un service et classe ce qui est à corriger."_s);
    photographer.press(Qt::Key_Tab);
    photographer.write(u"sécurité, audit"_s);
    photographer.take(u"create-valid"_s);
    for (int field = 0; field < 2; ++field)
        photographer.press(Qt::Key_Tab, Qt::ShiftModifier);
    photographer.press(Qt::Key_A, Qt::ControlModifier);
    photographer.write(u"revue-de-securite"_s);
    photographer.take(u"create-taken"_s);
    photographer.click(u"Annuler"_s);
    photographer.take(u"create-discard"_s);
    photographer.click(u"Abandonner"_s);
    photographOccupiedCreation(photographer, studio);
}

} // namespace vornel

#include "Scenes.h"

#include <QCoro/QCoroTask>

#include <fstream>

using namespace Qt::StringLiterals;
namespace fs = std::filesystem;

namespace vornel {
namespace {

/// Opens the library without an import.
void skipOnboarding(Studio &studio)
{
    studio.settle();
    for (const char *assistant : {"claude", "codex"}) {
        for (const auto &entry : fs::directory_iterator(studio.path(assistant)))
            fs::remove_all(entry);
    }
    studio.model().beginImportScan();
    studio.settle();
    studio.model().commitImport();
    studio.quieten();
}

QString addCategory(Studio &studio, const QString &name, const QString &colorHex)
{
    QCoro::waitFor(studio.model().createCategory(name, colorHex));
    return studio.model().overview()->categories.constLast().id;
}

void addSkill(Studio &studio, const CreateSkillRequest &request)
{
    QCoro::waitFor(studio.model().createSkill(request));
    studio.model().closeSkill();
}

QStringList manyTags()
{
    QStringList tags;
    for (int number = 1; number <= 60; ++number)
        tags.append(u"mot-clé-numéro-%1"_s.arg(number));
    return tags;
}

void addSkills(Studio &studio)
{
    const QString wide = addCategory(studio, QString(40, u'W'), u"FF8A3D"_s);
    const QString scripts = addCategory(studio, u"مراجعة 👩‍💻"_s, u"B071FF"_s);
    CreateSkillRequest request;
    request.slug = u"verification-"_s.repeated(6) + u"ab"_s;
    request.displayName =
        u"Vérification systématique de la cohérence des textes publiés, de leurs annexes et "
        "de leurs traductions dans toutes les langues de travail de l’institution"_s;
    request.category = wide;
    request.tags = manyTags();
    addSkill(studio, request);
    request.slug = u"rtl"_s;
    request.displayName = u"مراجعة الشيفرة البرمجية قبل كل نشر على الخوادم"_s;
    request.summary = request.displayName.repeated(4);
    request.category = scripts;
    request.tags = QStringList{u"مراجعة"_s, u"تدقيق"_s};
    addSkill(studio, request);
    request.slug = u"emoji"_s;
    request.displayName = u"👩‍💻🇫🇷🧪 Essais"_s;
    request.summary = QString(400, u'x');
    addSkill(studio, request);
}

/// Gives a skill a thousand files.
void addFiles(Studio &studio)
{
    const fs::path skill = studio.path("VORNEL/skills/emoji");
    for (int number = 0; number < 1000; ++number)
        std::ofstream(skill / ("fichier-" + std::to_string(number) + ".md")) << "#\n";
    studio.model().reload();
    studio.quieten();
}

void photographEditors(const Photographer &photographer, Studio &studio)
{
    studio.open(u"verification-"_s.repeated(6) + u"ab"_s);
    photographer.take(u"content-editor"_s);
    studio.model().closeSkill();
    studio.open(u"emoji"_s);
    photographer.take(u"content-files"_s);
    studio.model().closeSkill();
}

void photographCategoryMenu(const Photographer &photographer, Studio &studio)
{
    for (int number = 1; number <= 30; ++number)
        addCategory(studio, u"Catégorie %1"_s.arg(number), u"21D6D1"_s);
    studio.quieten();
    photographer.click(u"Sélectionner"_s);
    photographer.click(u"👩‍💻🇫🇷🧪 Essais"_s);
    photographer.click(u"Déplacer"_s);
    photographer.take(u"content-menu"_s);
    photographer.press(Qt::Key_Escape);
}

} // namespace

void photographContent(Photographer &photographer)
{
    Studio studio;
    photographer.watch(studio);
    skipOnboarding(studio);
    addSkills(studio);
    addFiles(studio);
    photographer.take(u"content"_s);
    photographEditors(photographer, studio);
    photographer.click(u"Gérer les catégories"_s);
    photographer.take(u"content-categories"_s);
    photographer.click(u"Fermer"_s);
    photographCategoryMenu(photographer, studio);
}

} // namespace vornel

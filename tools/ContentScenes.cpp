#include "Scenes.h"

#include <QCoro/QCoroTask>

#include <fstream>

using namespace Qt::StringLiterals;
namespace fs = std::filesystem;

namespace vornel {
namespace {

/// Opens the library without an import.
void skipOnboarding(Stage &stage)
{
    stage.settle();
    for (const char *assistant : {"claude", "codex"}) {
        for (const auto &entry : fs::directory_iterator(stage.path(assistant)))
            fs::remove_all(entry);
    }
    stage.model().beginImportScan();
    stage.settle();
    stage.model().commitImport();
    stage.quieten();
}

QString addCategory(Stage &stage, const QString &name, const QString &colorHex)
{
    QCoro::waitFor(stage.model().createCategory(name, colorHex));
    return stage.model().overview()->categories.constLast().id;
}

void addSkill(Stage &stage, const CreateSkillRequest &request)
{
    QCoro::waitFor(stage.model().createSkill(request));
    stage.model().closeSkill();
}

QStringList manyTags()
{
    QStringList tags;
    for (int number = 1; number <= 60; ++number)
        tags.append(u"mot-clé-numéro-%1"_s.arg(number));
    return tags;
}

void addSkills(Stage &stage)
{
    const QString wide = addCategory(stage, QString(40, u'W'), u"FF8A3D"_s);
    const QString scripts = addCategory(stage, u"مراجعة 👩‍💻"_s, u"B071FF"_s);
    CreateSkillRequest request;
    request.slug = u"verification-"_s.repeated(6) + u"ab"_s;
    request.displayName =
        u"Vérification systématique de la cohérence des textes publiés, de leurs annexes et "
        "de leurs traductions dans toutes les langues de travail de l’institution"_s;
    request.category = wide;
    request.tags = manyTags();
    addSkill(stage, request);
    request.slug = u"rtl"_s;
    request.displayName = u"مراجعة الشيفرة البرمجية قبل كل نشر على الخوادم"_s;
    request.summary = request.displayName.repeated(4);
    request.category = scripts;
    request.tags = QStringList{u"مراجعة"_s, u"تدقيق"_s};
    addSkill(stage, request);
    request.slug = u"emoji"_s;
    request.displayName = u"👩‍💻🇫🇷🧪 Essais"_s;
    request.summary = QString(400, u'x');
    addSkill(stage, request);
}

/// Gives a skill a thousand files.
void addFiles(Stage &stage)
{
    const fs::path skill = stage.path("VORNEL/skills/emoji");
    for (int number = 0; number < 1000; ++number)
        std::ofstream(skill / ("fichier-" + std::to_string(number) + ".md")) << "#\n";
    stage.model().reload();
    stage.quieten();
}

void photographEditors(const Photographer &photographer, Stage &stage)
{
    stage.open(u"verification-"_s.repeated(6) + u"ab"_s);
    photographer.take(u"content-editor"_s);
    stage.model().closeSkill();
    stage.open(u"emoji"_s);
    photographer.take(u"content-files"_s);
    stage.model().closeSkill();
}

void photographCategoryMenu(const Photographer &photographer, Stage &stage)
{
    for (int number = 1; number <= 30; ++number)
        addCategory(stage, u"Catégorie %1"_s.arg(number), u"21D6D1"_s);
    stage.quieten();
    photographer.click(u"Sélectionner"_s);
    photographer.click(u"👩‍💻🇫🇷🧪 Essais"_s);
    photographer.click(u"Déplacer"_s);
    photographer.take(u"content-menu"_s);
    photographer.press(Qt::Key_Escape);
}

} // namespace

void photographContent(Photographer &photographer)
{
    Stage stage;
    photographer.watch(stage);
    skipOnboarding(stage);
    addSkills(stage);
    addFiles(stage);
    photographer.take(u"content"_s);
    photographEditors(photographer, stage);
    photographer.click(u"Gérer les catégories"_s);
    photographer.take(u"content-categories"_s);
    photographer.click(u"Fermer"_s);
    photographCategoryMenu(photographer, stage);
}

} // namespace vornel

/// Renders the screens of the application, driven as a user would through the demonstration library, into
/// one picture each. Arguments: the folder for the pictures, the window's width and height, and the names of
/// the pictures to take (all without any).

#include "Scenes.h"

#include <QCoro/QCoroTask>
#include <QDir>
#include <QGuiApplication>
#include <QQmlExtensionPlugin>

Q_IMPORT_QML_PLUGIN(VORNELAppPlugin)
Q_IMPORT_QML_PLUGIN(VORNELDesignSystemPlugin)

using namespace Qt::StringLiterals;
using namespace vornel;
namespace fs = std::filesystem;

namespace {

/// Sorts the imported skills, which have no category yet, into several.
void sortSkills(Stage &stage)
{
    AppModel &model = stage.model();
    const QList<SkillSummary> skills = model.overview()->skills;
    const QStringList categories{u"development"_s, u"quality"_s, u"operations"_s, u"knowledge"_s};
    for (qsizetype number = 0; number < skills.size(); ++number) {
        model.assignSkills({skills.at(number).id}, categories.at(number % categories.size()));
        stage.settle();
    }
    stage.quieten();
}

/// A skill with keywords, which an imported one doesn't have.
void createSkill(Stage &stage)
{
    CreateSkillRequest request;
    request.slug = u"analyse-de-dependances"_s;
    request.displayName = u"Analyse de dépendances"_s;
    request.summary =
        u"Passe en revue les bibliothèques d’un projet, leurs licences et leurs failles connues, et "
        "propose les mises à jour dans l’ordre où elles risquent le moins."_s;
    request.category = u"development"_s;
    request.tags = QStringList{u"bibliothèques"_s, u"licences"_s, u"mises à jour"_s, u"sécurité"_s};
    QCoro::waitFor(stage.model().createSkill(request));
    stage.model().closeSkill();
    stage.quieten();
}

/// Takes a copy away, so that the library has something to repair.
void loseCopy(Stage &stage)
{
    fs::remove_all(stage.path("codex") / stage.model().overview()->skills.at(0).slug.toStdString());
    stage.model().reload();
    stage.quieten();
}

void photographShell(Photographer &photographer, Stage &stage)
{
    photographEmptyDestinations(photographer, stage);
    sortSkills(stage);
    createSkill(stage);
    photographEditor(photographer, stage);
    loseCopy(stage);
    photographLibrary(photographer, stage);
    photographCategories(photographer);
    photographTrash(photographer, stage);
    photographAttention(photographer, stage);
    photographError(photographer, stage);
    photographCreation(photographer, stage);
    photographEmptyLibrary(photographer, stage);
    photographClosing(photographer, stage);
}

} // namespace

int main(int argc, char *argv[])
{
    QGuiApplication application(argc, argv);
    QStringList arguments = QGuiApplication::arguments().mid(1);
    if (arguments.size() < 3)
        qFatal("usage: vornel-screenshots FOLDER WIDTH HEIGHT [NAME ...]");
    const QString folder = arguments.takeFirst();
    const int width = arguments.takeFirst().toInt();
    const int height = arguments.takeFirst().toInt();
    QDir().mkpath(folder);
    Photographer photographer(folder, {width, height}, arguments);
    photographFailure(photographer);
    photographImportFailure(photographer);
    photographOccupiedImport(photographer);
    Stage stage;
    photographOnboarding(photographer, stage);
    photographShell(photographer, stage);
    photographContent(photographer);
    return 0;
}

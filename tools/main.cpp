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

/// A skill with more keywords than a card has room for.
void createSkill(Studio &studio)
{
    CreateSkillRequest request;
    request.slug = u"analyse-de-dependances"_s;
    request.displayName = u"Analyse de dépendances"_s;
    request.summary =
        u"Passe en revue les bibliothèques d’un projet, leurs licences et leurs failles connues, et "
        "propose les mises à jour dans l’ordre où elles risquent le moins."_s;
    request.category = u"development"_s;
    request.tags = QStringList{u"bibliothèques"_s, u"licences"_s, u"mises à jour"_s, u"sécurité"_s};
    QCoro::waitFor(studio.model().createSkill(request));
    studio.model().closeSkill();
    studio.quieten();
}

/// Takes a copy away, so that the library has something to repair.
void loseCopy(Studio &studio)
{
    fs::remove_all(studio.path("codex") / studio.model().overview()->skills.at(0).slug.toStdString());
    studio.model().reload();
    studio.quieten();
}

void photographShell(Photographer &photographer, Studio &studio)
{
    photographEmptyDestinations(photographer, studio);
    studio.classifySkills();
    createSkill(studio);
    photographUndo(photographer, studio);
    photographEditor(photographer, studio);
    loseCopy(studio);
    photographLibrary(photographer, studio);
    photographCategories(photographer);
    photographCreation(photographer, studio);
    photographTrash(photographer, studio);
    photographAttention(photographer, studio);
    photographError(photographer, studio);
    photographUnreadable(photographer, studio);
    photographEmptyLibrary(photographer, studio);
    photographClosing(photographer, studio);
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
    Studio studio;
    photographOnboarding(photographer, studio);
    photographShell(photographer, studio);
    photographContent(photographer);
    return 0;
}

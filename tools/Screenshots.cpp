/// Renders the screens of the application, driven as a user would through the demonstration library, into
/// one picture each. Arguments: the folder for the pictures, the window's width and height, and the names of
/// the pictures to take (all without any).

#include <VORNELApp/AppModel.h>
#include <VORNELApp/VORNELApp.h>
#include <VORNELInfrastructure/DefaultWorkspaceLocator.h>

#include <QCoro/QCoroTask>
#include <QDir>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QQmlComponent>
#include <QQmlExtensionPlugin>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTemporaryDir>

#include <chrono>
#include <fstream>
#include <map>
#include <optional>
#include <sstream>
#include <string>

Q_IMPORT_QML_PLUGIN(VORNELAppPlugin)
Q_IMPORT_QML_PLUGIN(VORNELDesignSystemPlugin)

using namespace Qt::StringLiterals;
using namespace vornel;
namespace fs = std::filesystem;

namespace {

/// A scratch copy of the demonstration library, and an application on it.
class Stage
{
public:
    /// With `isBroken`, the workspace lies in an assistant's folder, so that the start fails.
    explicit Stage(bool isBroken = false)
    {
        const fs::path root = fs::path(m_folder.path().toStdString());
        for (const char *assistant : {"claude", "codex"})
            fs::copy(fs::path(VORNEL_DEMO) / assistant, root / assistant, fs::copy_options::recursive);
        const std::map<std::string, std::string> variables{
            {"VORNEL_TEST_MODE", "1"},
            {"VORNEL_WORKSPACE_PATH", root / (isBroken ? "claude/VORNEL" : "VORNEL")},
            {"VORNEL_CLAUDE_SKILLS_PATH", root / "claude"},
            {"VORNEL_CODEX_SKILLS_PATH", root / "codex"},
        };
        const Environment environment = [&variables](const char *name) {
            const auto found = variables.find(name);
            return found == variables.end() ? nullptr : found->second.c_str();
        };
        m_application.emplace(AppEnvironment::live(DefaultWorkspaceLocator(root), environment, root));
    }

    VORNELApp &application() { return *m_application; }
    AppModel &model() { return m_application->model(); }

    fs::path path(const char *below) const { return fs::path(m_folder.path().toStdString()) / below; }

private:
    QTemporaryDir m_folder;
    std::optional<VORNELApp> m_application;
};

/// Everything is at its place at once, so that a picture never shows a movement half done.
void stopMotion(QQmlEngine &engine)
{
    QQmlComponent component(&engine);
    component.setData("import QtQml; import VORNELDesignSystem\n"
                      "QtObject { Component.onCompleted: Motion.isEnabled = false }",
                      {});
    delete component.create();
}

class Photographer
{
public:
    Photographer(QString folder, QSize size, QStringList chosen)
        : m_folder(std::move(folder)), m_size(size), m_chosen(std::move(chosen))
    {}

    void watch(Stage &stage)
    {
        m_window = stage.application().showWindow();
        m_window->resize(m_size);
        stopMotion(stage.application().engine());
    }

    void take(const QString &name) const
    {
        QCoreApplication::processEvents();
        takeAtOnce(name);
    }

    /// The same, before anything else happens.
    void takeAtOnce(const QString &name) const
    {
        if (!m_chosen.isEmpty() && !m_chosen.contains(name))
            return;
        const QString file = m_folder + u'/' + name + u".png"_s;
        if (!m_window->grabWindow().save(file))
            qFatal("can't write %s", qUtf8Printable(file));
        qInfo("%s", qUtf8Printable(file));
    }

    /// Clicks the button that reads `text`; with `row`, the one in that row.
    void click(const QString &text, const QString &row = {}) const
    {
        QQuickItem *top = m_window->contentItem();
        QQuickItem *button = buttonBelow(row.isEmpty() ? top : buttonBelow(top, row), text);
        if (button == nullptr)
            qFatal("no button %s", qUtf8Printable(text));
        QMetaObject::invokeMethod(button, "clicked");
    }

    void press(Qt::Key key) const
    {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
        QCoreApplication::sendEvent(m_window, &event);
    }

    /// The same, key by key.
    void write(const QString &text) const
    {
        m_window->requestActivate();
        for (const QChar letter : text) {
            QKeyEvent event(QEvent::KeyPress, Qt::Key_unknown, Qt::NoModifier, letter);
            QCoreApplication::sendEvent(m_window, &event);
        }
    }

    /// Types into whatever has the keyboard.
    void type(const QString &text) const
    {
        m_window->requestActivate();
        QQuickItem *field = m_window->activeFocusItem();
        const int place = field->property("cursorPosition").toInt();
        QMetaObject::invokeMethod(field, "insert", Q_ARG(int, place), Q_ARG(QString, text));
    }

private:
    static QQuickItem *buttonBelow(QQuickItem *item, const QString &text)
    {
        if (item->property("text").toString() == text && item->property("checkable").isValid())
            return item;
        const auto children = item->childItems();
        for (QQuickItem *child : children) {
            if (QQuickItem *found = child->isVisible() ? buttonBelow(child, text) : nullptr)
                return found;
        }
        return nullptr;
    }

    QString m_folder;
    QSize m_size;
    QStringList m_chosen;
    QQuickWindow *m_window = nullptr;
};

void settle(const AppModel &model)
{
    do
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    while (model.isBusy());
    QCoreApplication::processEvents();
}

/// Lets what isn't an operation of the model come to its end: the look at copies and files.
void rest()
{
    QElapsedTimer timer;
    for (timer.start(); timer.elapsed() < 300;)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
}

/// Waits until the last confirmation has gone.
void quieten(const AppModel &model)
{
    settle(model);
    while (!model.transientMessage().isEmpty())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

void photographFailure(Photographer &photographer)
{
    Stage stage(true);
    photographer.watch(stage);
    settle(stage.model());
    photographer.take(u"failure"_s);
}

void photographOnboarding(Photographer &photographer, AppModel &model)
{
    photographer.take(u"launch"_s);
    settle(model);
    for (int page = 1; page <= 4; ++page) {
        photographer.take(u"onboarding-%1"_s.arg(page));
        model.advanceOnboarding();
    }
    photographer.takeAtOnce(u"import-scan"_s);
    settle(model);
    photographer.take(u"import-collisions"_s);
    const QList<ImportCollision> collisions = model.importPlan()->collisions;
    for (const ImportCollision &collision : collisions) {
        model.resolveCollision(collision.id, CollisionChoice::claude);
        settle(model);
    }
    photographer.click(u"2 dossiers ignorés"_s);
    photographer.take(u"import-ready"_s);
    photographer.click(u"Ouvrir la bibliothèque"_s);
    while (model.commitProgress() < 0.3)
        QCoreApplication::processEvents();
    photographer.take(u"import-progress"_s);
    settle(model);
}

QUuid idOf(const AppModel &model, const QString &slug)
{
    const QList<SkillSummary> skills = model.overview()->skills;
    return std::ranges::find(skills, slug, &SkillSummary::slug)->id;
}

/// Opens a skill, and waits until its copies have been looked at.
void open(Stage &stage, const QString &slug)
{
    stage.model().selectSkill(idOf(stage.model(), slug));
    settle(stage.model());
    rest();
}

/// Edits both assistants' copies of a skill, as an assistant would.
void editCopies(const Stage &stage)
{
    const fs::path copy = stage.path("claude/audit-accessibilite");
    std::stringstream text;
    text << std::ifstream(copy / "SKILL.md").rdbuf();
    const QString edited = QString::fromStdString(text.str()).replace(u"## "_s, u"## Étape\u00A0: "_s);
    std::ofstream(copy / "SKILL.md") << edited.toStdString();
    std::ofstream(copy / "exemples.md") << "# Exemples\n";
    fs::remove_all(stage.path("codex/audit-accessibilite/references"));
}

void photographEditor(Photographer &photographer, Stage &stage)
{
    AppModel &model = stage.model();
    model.selectSkill(idOf(model, u"revue-de-securite"_s));
    photographer.take(u"opening"_s);
    open(stage, u"revue-de-securite"_s);
    photographer.take(u"editor"_s);
    for (int line = 0; line < 10; ++line)
        photographer.press(Qt::Key_Down);
    photographer.type(u"Vérifie aussi les dépendances.\n"_s);
    photographer.take(u"editor-modified"_s);
    photographer.press(Qt::Key_Escape);
    photographer.take(u"editor-unsaved"_s);
    photographer.click(u"Ne pas enregistrer"_s);
    settle(model);

    open(stage, u"maquette-vers-composant"_s);
    photographer.click(u"maquette.png"_s);
    rest();
    photographer.take(u"editor-image"_s);
    model.closeSkill();

    editCopies(stage);
    model.reload();
    open(stage, u"audit-accessibilite"_s);
    photographer.take(u"editor-drifted"_s);
    photographer.click(u"Synchroniser"_s);
    rest();
    photographer.take(u"editor-differences"_s);
    photographer.click(u"Fermer"_s);
    model.closeSkill();
    settle(model);
}

/// A skill with keywords, which an imported one doesn't have.
void createSkill(AppModel &model)
{
    CreateSkillRequest request;
    request.slug = u"analyse-de-dependances"_s;
    request.displayName = u"Analyse de dépendances"_s;
    request.summary =
        u"Passe en revue les bibliothèques d’un projet, leurs licences et leurs failles connues, et "
        "propose les mises à jour dans l’ordre où elles risquent le moins."_s;
    request.category = u"development"_s;
    request.tags = QStringList{u"bibliothèques"_s, u"licences"_s, u"mises à jour"_s, u"sécurité"_s};
    QCoro::waitFor(model.createSkill(request));
    model.closeSkill();
    quieten(model);
}

/// Sorts the imported skills, which have no category yet, into several.
void sortSkills(AppModel &model)
{
    const QList<SkillSummary> skills = model.overview()->skills;
    const QStringList categories{u"development"_s, u"quality"_s, u"operations"_s, u"knowledge"_s};
    for (qsizetype number = 0; number < skills.size(); ++number) {
        model.assignSkills({skills.at(number).id}, categories.at(number % categories.size()));
        settle(model);
    }
    quieten(model);
}

void editThirdCategory(const Photographer &photographer)
{
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Return})
        photographer.press(key);
}

void photographCategories(const Photographer &photographer)
{
    photographer.click(u"Gérer les catégories"_s);
    photographer.take(u"categories"_s);
    photographer.click(u"Nouvelle"_s);
    photographer.take(u"category-new"_s);
    photographer.click(u"Annuler"_s);
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
    photographer.press(Qt::Key_Return);
    photographer.click(u"Supprimer"_s);
    photographer.take(u"category-delete"_s);
    photographer.press(Qt::Key_Escape);
    photographer.press(Qt::Key_Escape);
    photographer.click(u"Fermer"_s);
}

void photographCreation(const Photographer &photographer, const AppModel &model)
{
    photographer.click(u"Nouvelle compétence"_s);
    photographer.take(u"create"_s);
    photographer.write(u"Revue de sécurité"_s);
    photographer.press(Qt::Key_Tab);
    photographer.press(Qt::Key_Tab);
    photographer.write(u"Relit les points d’entrée d’un service et classe ce qui est à corriger."_s);
    photographer.press(Qt::Key_Tab);
    photographer.write(u"sécurité, audit"_s);
    photographer.take(u"create-valid"_s);
    photographer.click(u"Créer"_s);
    settle(model);
    photographer.take(u"create-taken"_s);
    photographer.click(u"Annuler"_s);
    photographer.click(u"Abandonner"_s);
}

void photographLibrary(Photographer &photographer, Stage &stage)
{
    AppModel &model = stage.model();
    sortSkills(model);
    createSkill(model);
    photographEditor(photographer, stage);
    fs::remove_all(stage.path("codex") / model.overview()->skills.at(0).slug.toStdString());
    model.reload();
    quieten(model);
    photographer.take(u"library"_s);
    model.setSelectedCategory(u"quality"_s);
    photographer.take(u"library-category"_s);
    model.setSelectedCategory({});
    photographer.click(u"Sélectionner"_s);
    const QList<SkillSummary> skills = model.overview()->skills;
    for (const SkillSummary &skill : skills.mid(0, 3))
        photographer.click(skill.displayName);
    photographer.take(u"library-selection"_s);
    photographer.click(u"Supprimer"_s);
    photographer.take(u"library-trash"_s);
    photographer.click(u"Annuler"_s);
    photographer.click(u"Terminer la sélection"_s);
    photographCategories(photographer);
    model.setSearchText(u"sécurité"_s);
    photographer.take(u"library-search"_s);
    model.setSearchText(u"introuvable"_s);
    model.setSelectedMaturity(Maturity::ready);
    photographer.take(u"library-no-result"_s);
    model.setSearchText({});
    model.setSelectedMaturity({});
}

void emptyLibrary(AppModel &model)
{
    QSet<QUuid> ids;
    const QList<SkillSummary> skills = model.overview()->skills;
    for (const SkillSummary &skill : skills)
        ids.insert(skill.id);
    model.moveSkillsToTrash(ids);
    quieten(model);
}

void photographTrash(Photographer &photographer, Stage &stage)
{
    AppModel &model = stage.model();
    const QList<SkillSummary> skills = model.overview()->skills;
    QSet<QUuid> ids;
    for (const SkillSummary &skill : skills.mid(6, 5))
        ids.insert(skill.id);
    model.moveSkillsToTrash(ids);
    quieten(model);
    model.setSelectedDestination(Destination::trash);
    rest();
    photographer.take(u"trash"_s);
    photographer.click(u"Restaurer"_s);
    photographer.take(u"trash-confirmation"_s);
    photographer.click(u"Annuler"_s);
    photographer.click(u"Sélectionner"_s);
    for (const int number : {6, 8, 9})
        photographer.click(skills.at(number).displayName);
    photographer.take(u"trash-selection"_s);
    photographer.click(u"Terminer la sélection"_s);
    model.setSearchText(u"introuvable"_s);
    photographer.take(u"trash-no-result"_s);
    model.setSearchText({});
}

/// Lets copies be missing, edited and unreadable.
void harmCopies(Stage &stage)
{
    const QList<SkillSummary> skills = stage.model().overview()->skills;
    const auto copy = [&](const char *assistant, qsizetype number) {
        return stage.path(assistant) / skills.at(number).slug.toStdString();
    };
    fs::remove_all(copy("codex", 0));
    fs::remove_all(copy("claude", 3));
    for (const qsizetype number : {2, 4, 5})
        std::ofstream(copy("claude", number) / "SKILL.md", std::ios::app) << "\nUne ligne de plus.\n";
    fs::remove_all(copy("codex", 5));
    std::ofstream(copy("codex", 5)) << "pas un dossier";
}

void photographAttention(Photographer &photographer, Stage &stage)
{
    AppModel &model = stage.model();
    harmCopies(stage);
    model.reload();
    quieten(model);
    model.setSelectedDestination(Destination::needsAttention);
    rest();
    photographer.take(u"attention"_s);
    photographer.click(u"Synchroniser"_s, u"Audit d’accessibilité"_s);
    rest();
    photographer.take(u"attention-differences"_s);
    photographer.click(u"Fermer"_s);
    photographer.click(u"Tout synchroniser"_s);
    rest();
    photographer.take(u"attention-question"_s);
    photographer.press(Qt::Key_Tab);
    photographer.press(Qt::Key_Return);
    while (model.batch()->doneCount() < 2)
        QCoreApplication::processEvents();
    photographer.takeAtOnce(u"attention-progress"_s);
    quieten(model);
    rest();
    photographer.take(u"attention-failures"_s);
    model.clearError();
    model.setSelectedDestination(Destination::library);
}

void photographShell(Photographer &photographer, Stage &stage)
{
    AppModel &model = stage.model();
    photographer.take(u"library-confirmation"_s);
    quieten(model);
    model.setSelectedDestination(Destination::needsAttention);
    photographer.take(u"attention-empty"_s);
    model.setSelectedDestination(Destination::trash);
    photographer.take(u"trash-empty"_s);
    model.setSelectedDestination(Destination::library);
    photographLibrary(photographer, stage);

    photographTrash(photographer, stage);
    photographAttention(photographer, stage);
    model.restore(QUuid::createUuid());
    settle(model);
    photographer.take(u"error"_s);
    model.clearError();
    photographCreation(photographer, model);
    emptyLibrary(model);
    photographer.take(u"library-empty"_s);
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
    Stage stage;
    photographer.watch(stage);
    photographOnboarding(photographer, stage.model());
    photographShell(photographer, stage);
    return 0;
}

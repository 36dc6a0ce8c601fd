#include "SingleInstance.h"
#include "TerminationSignals.h"
#include "VORNELApp.h"

#include <VORNELApp/Model/AppModel.h>
#include <VORNELCore/Errors/ErrorMessage.h>
#include <VORNELInfrastructure/Workspace/DefaultWorkspaceLocator.h>

#include <QCryptographicHash>
#include <QGuiApplication>
#include <QHash>
#include <QQmlExtensionPlugin>
#include <QQuickView>
#include <QStandardPaths>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <span>

Q_IMPORT_QML_PLUGIN(VORNELAppPlugin)
Q_IMPORT_QML_PLUGIN(VORNELDesignSystemPlugin)

using namespace Qt::StringLiterals;
using namespace vornel;

namespace {

const QString usage = u"Usage\u00A0: vornel\n\n"
                      "Ouvre la bibliothèque de vos compétences.\n\n"
                      "  -h, --help     affiche cette aide\n"
                      "  -v, --version  affiche la version\n"_s;
const QString noScreen = u"Aucun écran n’est disponible. "
                         "La ligne de commande reste possible\u00A0: vornelctl status\n"_s;

/// What the command line asks for. Those who work on the program have two more options than its users.
struct Options
{
    bool showsHelp = false;
    bool showsVersion = false;
    bool showsGallery = false;
    bool endsAfterFirstFrame = false;
    QString unknown;
};

Options options(const QStringList &arguments)
{
    const QHash<QString, bool Options::*> known{
        {u"-h"_s, &Options::showsHelp},
        {u"--help"_s, &Options::showsHelp},
        {u"-v"_s, &Options::showsVersion},
        {u"--version"_s, &Options::showsVersion},
        {u"--gallery"_s, &Options::showsGallery},
        {u"--end-after-first-frame"_s, &Options::endsAfterFirstFrame}};
    Options chosen;
    for (const QString &argument : arguments) {
        if (const auto option = known.find(argument); option != known.end())
            chosen.*option.value() = true;
        else if (chosen.unknown.isNull())
            chosen.unknown = argument;
    }
    return chosen;
}

AppEnvironment liveEnvironment()
{
    const Environment environment = [](const char *variable) { return std::getenv(variable); };
    const std::filesystem::path home = homeFolder(environment);
    return AppEnvironment::live(DefaultWorkspaceLocator(home), environment, home);
}

int showGallery()
{
    QQuickView view;
    VORNELApp::prepare(*view.engine());
    view.setResizeMode(QQuickView::SizeRootObjectToView);
    view.setSource(u"qrc:/qt/qml/VORNELDesignSystem/Gallery.qml"_s);
    view.resize(1240, 800);
    view.show();
    return QGuiApplication::exec();
}

/// Names the folders that a window shows: there is one window for each choice of them.
QString instanceName(const AppEnvironment &environment)
{
    QCryptographicHash hash(QCryptographicHash::Sha256);
    for (const auto &folder : {environment.workspaceURL, environment.claudeRoot, environment.codexRoot})
        hash.addData(QByteArray::fromStdString(folder.string()) + '\0');
    return u"vornel-"_s + QString::fromLatin1(hash.result().toHex().first(16));
}

/// Tells a desktop of X11 that this start is over. It waits for a window to show: this one is out of sight,
/// and no window manager is told of it.
void concludeStart()
{
    if (QGuiApplication::platformName() != u"xcb")
        return;
    QWindow unseen;
    unseen.setFlags(Qt::BypassWindowManagerHint | Qt::FramelessWindowHint);
    unseen.setGeometry(-1, -1, 1, 1);
    unseen.show();
}

int showApplication(bool endsAfterFirstFrame)
{
    const AppEnvironment environment = liveEnvironment();
    SingleInstance instance(QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation),
                            instanceName(environment));
    if (!instance.opensWindow(qgetenv("XDG_ACTIVATION_TOKEN"))) {
        concludeStart();
        return EXIT_SUCCESS;
    }

    VORNELApp application(environment);
    // Before the window shows, so as not to delay its first frame.
    instance.serve([&application](const QByteArray &token) { return application.raiseWindow(token); });
    QQuickWindow *window = application.showWindow();
    if (window == nullptr)
        return EXIT_FAILURE;
    if (endsAfterFirstFrame)
        QObject::connect(window, &QQuickWindow::frameSwapped, qApp, &QGuiApplication::quit,
                         Qt::QueuedConnection);
    const TerminationSignals signals;
    QObject::connect(&signals, &TerminationSignals::received, window, [&application] { application.end(); });
    const int status = QGuiApplication::exec();
    instance.retire(); // before the model ends, which may take its time
    const QString loss = application.model().departure()->loss();
    if (loss.isEmpty())
        return status;
    std::fputs(qUtf8Printable(loss + u'\n'), stderr);
    return EXIT_FAILURE;
}

bool hasScreen()
{
    return std::ranges::any_of(std::array{"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"},
                               [](const char *variable) { return !qEnvironmentVariableIsEmpty(variable); });
}

/// What needs no screen: the answer to a mistake or a question. Nothing when the window is wanted.
std::optional<int> answer(const Options &chosen)
{
    if (!chosen.unknown.isNull()) {
        const QString mistake = u"Argument inconnu\u00A0: "_s + chosen.unknown + u"\n\n"_s + usage;
        std::fputs(qUtf8Printable(mistake), stderr);
        return 64;
    }
    if (chosen.showsHelp || chosen.showsVersion) {
        const QString version = QStringLiteral("vornel " VORNEL_VERSION "\n");
        std::fputs(qUtf8Printable(chosen.showsHelp ? usage : version), stdout);
        return EXIT_SUCCESS;
    }
    if (!hasScreen()) {
        std::fputs(qUtf8Printable(noScreen), stderr);
        return EXIT_FAILURE;
    }
    return std::nullopt;
}

} // namespace

int main(int argc, char *argv[])
{
    QStringList arguments;
    for (const char *argument : std::span(argv, static_cast<size_t>(argc)).subspan(1))
        arguments.append(QString::fromLocal8Bit(argument));
    const Options chosen = options(arguments);
    if (const auto status = answer(chosen))
        return *status;

    QGuiApplication application(argc, argv);
    QGuiApplication::setApplicationName(u"vornel"_s);
    QGuiApplication::setApplicationDisplayName(u"VORNEL"_s);
    QGuiApplication::setDesktopFileName(u"com.brindlecove.vornel"_s);
    try {
        return chosen.showsGallery ? showGallery() : showApplication(chosen.endsAfterFirstFrame);
    } catch (const std::exception &error) {
        std::fputs(qUtf8Printable(errorMessage(error) + u'\n'), stderr);
        return EXIT_FAILURE;
    }
}

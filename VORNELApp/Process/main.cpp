#include "SingleInstance.h"
#include "StartOptions.h"
#include "TerminationSignals.h"

#include <VORNELApp/App/VORNELApp.h>
#include <VORNELApp/Exchange/DialogTranslator.h>
#include <VORNELApp/Model/AppModel.h>
#include <VORNELCore/Errors/ErrorMessage.h>
#include <VORNELInfrastructure/Workspace/DefaultWorkspaceLocator.h>

#include <QCryptographicHash>
#include <QGuiApplication>
#include <QQmlExtensionPlugin>
#include <QQuickView>
#include <QStandardPaths>

#include <cstdio>
#include <cstdlib>
#include <span>

Q_IMPORT_QML_PLUGIN(VORNELAppPlugin)
Q_IMPORT_QML_PLUGIN(VORNELDesignSystemPlugin)

using namespace Qt::StringLiterals;
using namespace vornel;

namespace {

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

} // namespace

int main(int argc, char *argv[])
{
    QStringList arguments;
    for (const char *argument : std::span(argv, static_cast<size_t>(argc)).subspan(1))
        arguments.append(QString::fromLocal8Bit(argument));
    const StartOptions chosen(arguments);
    if (const auto status = chosen.answer())
        return *status;

    QGuiApplication application(argc, argv);
    QGuiApplication::setApplicationName(u"vornel"_s);
    QGuiApplication::setApplicationDisplayName(u"VORNEL"_s);
    QGuiApplication::setDesktopFileName(u"com.brindlecove.vornel"_s);
    DialogTranslator translator;
    QGuiApplication::installTranslator(&translator);
    try {
        return chosen.showsGallery ? showGallery() : showApplication(chosen.endsAfterFirstFrame);
    } catch (const std::exception &error) {
        std::fputs(qUtf8Printable(errorMessage(error) + u'\n'), stderr);
        return EXIT_FAILURE;
    }
}

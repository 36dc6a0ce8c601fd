#include "VORNELApp.h"

#include <VORNELCore/ErrorMessage.h>
#include <VORNELInfrastructure/DefaultWorkspaceLocator.h>

#include <QCommandLineParser>
#include <QGuiApplication>
#include <QQmlExtensionPlugin>
#include <QQuickView>

#include <cstdio>
#include <cstdlib>

Q_IMPORT_QML_PLUGIN(VORNELAppPlugin)
Q_IMPORT_QML_PLUGIN(VORNELDesignSystemPlugin)

using namespace Qt::StringLiterals;
using namespace vornel;

namespace {

struct Options
{
    bool showsGallery = false;
    bool endsAfterFirstFrame = false;
};

Options options(const QGuiApplication &application)
{
    const auto hidden = [](const QString &name) {
        QCommandLineOption option(name);
        option.setFlags(QCommandLineOption::HiddenFromHelp);
        return option;
    };
    QCommandLineParser parser;
    parser.setApplicationDescription(u"La bibliothèque de vos compétences, au même endroit."_s);
    parser.addHelpOption();
    parser.addVersionOption();
    const QCommandLineOption gallery = hidden(u"gallery"_s);
    const QCommandLineOption firstFrame = hidden(u"end-after-first-frame"_s);
    parser.addOptions({gallery, firstFrame});
    parser.process(application);
    return {parser.isSet(gallery), parser.isSet(firstFrame)};
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

int showApplication(bool endsAfterFirstFrame)
{
    VORNELApp application(liveEnvironment());
    QQuickWindow *window = application.showWindow();
    if (window == nullptr)
        return EXIT_FAILURE;
    if (endsAfterFirstFrame)
        QObject::connect(window, &QQuickWindow::frameSwapped, qApp, &QGuiApplication::quit,
                         Qt::QueuedConnection);
    return QGuiApplication::exec();
}

} // namespace

int main(int argc, char *argv[])
{
    QGuiApplication application(argc, argv);
    QGuiApplication::setApplicationName(u"vornel"_s);
    QGuiApplication::setApplicationDisplayName(u"VORNEL"_s);
    QGuiApplication::setApplicationVersion(QStringLiteral(VORNEL_VERSION));
    const Options chosen = options(application);
    try {
        return chosen.showsGallery ? showGallery() : showApplication(chosen.endsAfterFirstFrame);
    } catch (const std::exception &error) {
        std::fputs(qUtf8Printable(errorMessage(error) + u'\n'), stderr);
        return EXIT_FAILURE;
    }
}

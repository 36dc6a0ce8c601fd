#include "AppEnvironment.h"
#include "AppModel.h"
#include "BrandFontRegistrar.h"
#include "VORNELResources.h"

#include <VORNELCore/ErrorMessage.h>
#include <VORNELDesignSystem/Symbol.h>
#include <VORNELInfrastructure/DefaultWorkspaceLocator.h>

#include <QCommandLineParser>
#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQuickWindow>
#include <QtQml/qqmlextensionplugin.h>

#include <cstdlib>

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

} // namespace

int main(int argc, char *argv[])
{
    QGuiApplication application(argc, argv);
    QGuiApplication::setApplicationName(u"vornel"_s);
    QGuiApplication::setApplicationVersion(QStringLiteral(VORNEL_VERSION));
    BrandFontRegistrar::registerFonts();
    Symbol::setFolder(VORNELResources::bundle() + u"/Images"_s);
    const auto model = liveEnvironment().makeAppModel();
    QQmlApplicationEngine engine;
    engine.addImportPath(u"qrc:/qt/qml"_s);
    engine.setInitialProperties({{u"model"_s, QVariant::fromValue(model.get())}});
    engine.load(u"qrc:/qt/qml/VORNELApp/Main.qml"_s);
    return QGuiApplication::exec();
}

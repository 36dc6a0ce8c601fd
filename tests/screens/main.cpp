#include "Fixture.h"

#include <VORNELApp/App/VORNELApp.h>

#include <QQmlEngine>
#include <QQmlExtensionPlugin>
#include <QtQuickTest>

Q_IMPORT_QML_PLUGIN(VORNELAppPlugin)
Q_IMPORT_QML_PLUGIN(VORNELDesignSystemPlugin)

/// Makes the fixture and the product's modules known to the tests in QML.
class Setup : public QObject
{
    Q_OBJECT

public Q_SLOTS:
    void qmlEngineAvailable(QQmlEngine *engine)
    {
        vornel::VORNELApp::prepare(*engine);
        qmlRegisterType<vornel::Fixture>("VORNELTests", 1, 0, "Fixture");
    }
};

QUICK_TEST_MAIN_WITH_SETUP(Screens, Setup)

#include "main.moc"

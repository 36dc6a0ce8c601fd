#include "VORNELApp.h"

#include "BrandFontRegistrar.h"
#include "VORNELResources.h"
#include "WindowPlacement.h"

#include <VORNELApp/Model/AppModel.h>
#include <VORNELDesignSystem/Tokens/Symbol.h>

#include <QQuickWindow>

using namespace Qt::StringLiterals;

namespace vornel {

VORNELApp::VORNELApp(AppEnvironment live) : environment(std::move(live)), m_model(environment.makeAppModel())
{
    prepare(m_engine);
}

VORNELApp::~VORNELApp() = default;

QQuickWindow *VORNELApp::showWindow()
{
    m_engine.setInitialProperties({{u"model"_s, QVariant::fromValue(m_model.get())}});
    m_engine.load(u"qrc:/qt/qml/VORNELApp/Main.qml"_s);
    if (window() == nullptr)
        return nullptr;
    m_placement = std::make_unique<WindowPlacement>(*window(), environment.defaults);
    m_placement->show();
    return window();
}

bool VORNELApp::raiseWindow(const QByteArray &token)
{
    if (!window()->isVisible() || m_model->departure()->isForced())
        return false;
    if (!token.isEmpty())
        qputenv("XDG_ACTIVATION_TOKEN", token);
    window()->setProperty("isClosing", false);
    window()->setWindowStates(window()->windowStates() & ~Qt::WindowMinimized);
    window()->raise();
    window()->requestActivate();
    return true;
}

void VORNELApp::end()
{
    m_model->departure()->force();
    window()->close();
}

QQuickWindow *VORNELApp::window() const
{
    const QList<QObject *> roots = m_engine.rootObjects();
    return roots.isEmpty() ? nullptr : qobject_cast<QQuickWindow *>(roots.first());
}

void VORNELApp::prepare(QQmlEngine &engine)
{
    BrandFontRegistrar::registerFonts();
    Symbol::setFolder(VORNELResources::bundle() + u"/Images"_s);
    engine.addImportPath(u"qrc:/qt/qml"_s);
}

} // namespace vornel

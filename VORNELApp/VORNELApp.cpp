#include "VORNELApp.h"

#include "AppModel.h"
#include "BrandFontRegistrar.h"
#include "VORNELResources.h"

#include <VORNELDesignSystem/Symbol.h>

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
    return m_engine.rootObjects().isEmpty() ? nullptr
                                            : qobject_cast<QQuickWindow *>(m_engine.rootObjects().first());
}

void VORNELApp::prepare(QQmlEngine &engine)
{
    BrandFontRegistrar::registerFonts();
    Symbol::setFolder(VORNELResources::bundle() + u"/Images"_s);
    engine.addImportPath(u"qrc:/qt/qml"_s);
}

} // namespace vornel

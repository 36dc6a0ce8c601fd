/// The yardstick of the application's start: the least program with a window of Qt Quick Controls. It ends
/// after its first frame, as `vornel --end-after-first-frame` does.

#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQuickWindow>

#include <cstdlib>

using namespace Qt::StringLiterals;

int main(int argc, char *argv[])
{
    QGuiApplication application(argc, argv);
    QQmlApplicationEngine engine(u"qrc:/qt/qml/EmptyWindow/EmptyWindow.qml"_s);
    if (engine.rootObjects().isEmpty())
        return EXIT_FAILURE;
    QObject::connect(qobject_cast<QQuickWindow *>(engine.rootObjects().first()), &QQuickWindow::frameSwapped,
                     &application, &QGuiApplication::quit, Qt::QueuedConnection);
    return QGuiApplication::exec();
}

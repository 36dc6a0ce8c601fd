#include "ApplicationChoice.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusUnixFileDescriptor>
#include <QGuiApplication>
#include <QTimer>
#include <QUuid>
#include <QWindow>

#include <utility>

using namespace Qt::StringLiterals;

namespace vornel {

namespace {

constexpr QLatin1String portal("/org/freedesktop/portal/desktop");

/// The window that the question belongs to, where a window has a name for other programs.
QString parentWindow()
{
    const QWindow *const window = QGuiApplication::focusWindow();
    const bool hasName = window != nullptr && QGuiApplication::platformName() == u"xcb"_s;
    return hasName ? u"x11:"_s + QString::number(window->winId(), 16) : QString();
}

/// Where the portal answers a request of this program.
QString placeOf(const QString &request, const QDBusConnection &bus)
{
    return portal + u"/request/"_s + bus.baseService().mid(1).replace(u'.', u'_') + u'/' + request;
}

} // namespace

ApplicationChoice::ApplicationChoice(const QDBusConnection &bus, const QFile &file, QObject *parent)
    : QObject(parent)
{
    if (bus.isConnected())
        ask(bus, file);
    else // whoever waits for it has yet to say so
        QTimer::singleShot(0, this, SLOT(fail()));
}

/// The answer may come before that to the call. No service is named for it: its owner would be waited for.
void ApplicationChoice::ask(QDBusConnection bus, const QFile &file)
{
    const QString request = u"vornel_"_s + QUuid::createUuid().toString(QUuid::Id128);
    bus.connect({}, placeOf(request, bus), u"org.freedesktop.portal.Request"_s, u"Response"_s, this,
                SLOT(conclude(uint, QVariantMap)));
    auto call = QDBusMessage::createMethodCall(u"org.freedesktop.portal.Desktop"_s, portal,
                                               u"org.freedesktop.portal.OpenURI"_s, u"OpenFile"_s);
    call << parentWindow() << QVariant::fromValue(QDBusUnixFileDescriptor(file.handle()))
         << QVariantMap{{u"handle_token"_s, request}, {u"ask"_s, true}, {u"writable"_s, file.isWritable()}};
    constexpr int longest = 120'000; // milliseconds: the call may have to start the portal first
    const auto *const answer = new QDBusPendingCallWatcher(bus.asyncCall(call, longest), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this](QDBusPendingCallWatcher *answered) {
        if (answered->isError())
            fail();
    });
}

void ApplicationChoice::conclude(uint response, const QVariantMap & /*results*/)
{
    enum Response : uint { Opened, Cancelled, Ended };
    end(response == Ended);
}

void ApplicationChoice::fail()
{
    end(true);
}

void ApplicationChoice::end(bool hasFailed)
{
    if (std::exchange(m_hasEnded, true))
        return;
    if (hasFailed)
        Q_EMIT failed();
    deleteLater();
}

} // namespace vornel

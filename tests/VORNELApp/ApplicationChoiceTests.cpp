/// The choice of an application for a file, as a desktop's portal meets it, on a bus of its own.

#include "Scratch.h"

#include <VORNELApp/Editor/ApplicationChoice.h>

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusUnixFileDescriptor>
#include <QDBusVirtualObject>
#include <QProcess>
#include <QTest>

#include <optional>

using namespace Qt::StringLiterals;

namespace vornel {
namespace {

/// Nothing is started on it.
constexpr auto busConfiguration = R"(<busconfig>
  <type>session</type>
  <listen>unix:path=%1</listen>
  <policy context="default">
    <allow own="*"/><allow send_destination="*"/><allow receive_sender="*"/>
  </policy>
</busconfig>)";

/// Answers what it is told to, and remembers what it was asked for.
class Portal : public QDBusVirtualObject
{
public:
    QString introspect(const QString & /*path*/) const override { return {}; }

    bool handleMessage(const QDBusMessage &call, const QDBusConnection &bus) override
    {
        if (call.interface() != u"org.freedesktop.portal.OpenURI"_s || call.member() != u"OpenFile"_s)
            return false;
        const auto descriptor = call.arguments().at(1).value<QDBusUnixFileDescriptor>();
        QFile file;
        file.open(descriptor.fileDescriptor(), QIODevice::ReadOnly);
        file.seek(0); // which all who hold it share
        content = file.readAll();
        options = qdbus_cast<QVariantMap>(call.arguments().at(2));
        if (!response)
            return bus.send(call.createErrorReply(QDBusError::AccessDenied, u"refused"_s));
        const QString request = u"/org/freedesktop/portal/desktop/request/%1/%2"_s.arg(
            call.service().mid(1).replace(u'.', u'_'), options.value(u"handle_token"_s).toString());
        bus.send(call.createReply(QVariant::fromValue(QDBusObjectPath(request))));
        auto answer = QDBusMessage::createTargetedSignal(call.service(), request,
                                                         u"org.freedesktop.portal.Request"_s, u"Response"_s);
        return bus.send(answer << *response << QVariantMap());
    }

    std::optional<uint> response; ///< none: the call is refused
    QByteArray content;
    QVariantMap options;
};

class ApplicationChoiceTest : public testing::Test
{
protected:
    ApplicationChoiceTest()
    {
        const auto place = scratch.path("bus");
        const auto file = scratch.write(
            "bus.conf",
            QString::fromLatin1(busConfiguration).arg(QString::fromStdString(place)).toStdString());
        daemon.start(u"dbus-daemon"_s,
                     {u"--nofork"_s, u"--print-address"_s, u"--config-file"_s, QString::fromStdString(file)});
        EXPECT_TRUE(daemon.waitForReadyRead()) << daemon.errorString().toStdString();
        const QString address = QString::fromLatin1(daemon.readLine().trimmed());
        client = QDBusConnection::connectToBus(address, u"client"_s);
        desktop = QDBusConnection::connectToBus(address, u"desktop"_s);
    }
    ~ApplicationChoiceTest() override
    {
        for (const QString &name : {u"client"_s, u"desktop"_s})
            QDBusConnection::disconnectFromBus(name);
        daemon.kill();
        daemon.waitForFinished();
    }
    ApplicationChoiceTest(const ApplicationChoiceTest &) = delete;
    ApplicationChoiceTest &operator=(const ApplicationChoiceTest &) = delete;

    void offer(Portal &portal)
    {
        EXPECT_TRUE(desktop.registerVirtualObject(u"/org/freedesktop/portal/desktop"_s, &portal));
        EXPECT_TRUE(desktop.registerService(u"org.freedesktop.portal.Desktop"_s));
    }

    /// Whether a choice ends in failure; it always ends.
    static bool fails(const QDBusConnection &bus, const QFile &file)
    {
        bool hasFailed = false;
        const QPointer<ApplicationChoice> choice(new ApplicationChoice(bus, file, nullptr));
        QObject::connect(choice, &ApplicationChoice::failed, choice, [&] { hasFailed = true; });
        EXPECT_TRUE(QTest::qWaitFor([&] { return choice.isNull(); }));
        return hasFailed;
    }

    Scratch scratch;
    QProcess daemon;
    QDBusConnection client{u"client"_s};
    QDBusConnection desktop{u"desktop"_s};
};

TEST_F(ApplicationChoiceTest, IsAskedByThePortalOrFails)
{
    QFile file(QString::fromStdString(scratch.write("guide.txt", "un deux")));
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    EXPECT_TRUE(fails(QDBusConnection(u"none"_s), file)) << "no bus";
    EXPECT_TRUE(fails(client, file)) << "no portal";

    Portal portal;
    offer(portal);
    EXPECT_TRUE(fails(client, file)) << "the call is refused";
    enum Response : uint { Opened, Cancelled, Ended };
    for (const auto response : {Opened, Cancelled, Ended}) {
        portal.response = response;
        EXPECT_EQ(fails(client, file), response == Ended) << response;
    }
    EXPECT_EQ(portal.content, "un deux");
    EXPECT_TRUE(portal.options.value(u"ask"_s).toBool());
    EXPECT_TRUE(portal.options.value(u"writable"_s).toBool());

    QFile fixed(file.fileName());
    ASSERT_TRUE(fixed.open(QIODevice::ReadOnly));
    fails(client, fixed);
    EXPECT_FALSE(portal.options.value(u"writable"_s).toBool()) << "portals refuse what can't be kept";
}

} // namespace
} // namespace vornel

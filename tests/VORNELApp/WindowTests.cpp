/// What the window shares with other starts of the program: its place, and being the only one.

#include "Scratch.h"

#include <VORNELApp/App/WindowPlacement.h>
#include <VORNELApp/Process/SingleInstance.h>
#include <VORNELCore/Records/SerializedForms.h>

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QScreen>

#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <functional>
#include <future>

using namespace std::chrono_literals;
using namespace Qt::StringLiterals;

namespace vornel {
namespace {

struct PlacementTest : testing::Test
{
    /// What a window that opens now looks like; `change` is what the user does to it then.
    QRect open(const std::function<void(QWindow &)> &change = {}, Qt::WindowStates *states = nullptr) const
    {
        QWindow window;
        window.setMinimumSize({300, 200});
        window.resize(700, 500);
        WindowPlacement placement(window, settings());
        placement.show();
        const QRect opened(window.framePosition(), window.size());
        if (states != nullptr)
            *states = window.windowStates();
        if (change)
            change(window);
        QCoreApplication::processEvents();
        return opened;
    }

    std::shared_ptr<QSettings> settings() const
    {
        return std::make_shared<QSettings>(pathText(scratch.path("settings.ini")), QSettings::IniFormat);
    }

    static void move(QWindow &window, const QRect &place)
    {
        window.setFramePosition(place.topLeft());
        window.resize(place.size());
    }

    Scratch scratch;
};

TEST_F(PlacementTest, aWindowOpensAsItWasLeft)
{
    EXPECT_EQ(open([](QWindow &window) { move(window, {40, 50, 420, 310}); }).size(), QSize(700, 500));
    Qt::WindowStates states;
    EXPECT_EQ(open([](QWindow &window) { window.showMaximized(); }, &states), QRect(40, 50, 420, 310));
    EXPECT_EQ(states, Qt::WindowNoState);
    open([](QWindow &window) { window.showNormal(); }, &states);
    EXPECT_EQ(states, Qt::WindowMaximized);
}

TEST_F(PlacementTest, aPlaceThatNoScreenShowsIsNotTaken)
{
    open([](QWindow &window) { move(window, {40'000, 50, 420, 310}); });
    const QRect reopened = open();
    EXPECT_EQ(reopened.size(), QSize(420, 310));
    EXPECT_TRUE(QGuiApplication::primaryScreen()->geometry().contains(reopened.topLeft()));
}

TEST_F(PlacementTest, aPlaceIsTakenDownFromTheFrameOfAClosedWindow)
{
    open([](QWindow &window) {
        move(window, {40, 50, 420, 310});
        QCoreApplication::processEvents();
        window.close();
    });
    EXPECT_EQ(open(), QRect(40, 50, 420, 310));
}

TEST_F(PlacementTest, aWindowLargerThanItsScreenIsCutDown)
{
    const QSize available = QGuiApplication::primaryScreen()->availableGeometry().size();
    open([](QWindow &window) { move(window, {-2'000, 0, 5'000, 5'000}); });
    EXPECT_EQ(open().size(), available);
    open([](QWindow &window) { move(window, {40'000, 0, 5'000, 5'000}); });
    EXPECT_EQ(open().size(), QSize(700, 500));

    QWindow first;
    first.setMinimumSize(available * 2);
    first.resize(available * 3);
    WindowPlacement(first, std::make_shared<QSettings>()).show();
    EXPECT_EQ(first.size(), available);
}

TEST_F(PlacementTest, aSizeThatComesBeforeItsStateIsNotTheWindowsOwn)
{
    open([](QWindow &window) { move(window, {40, 50, 420, 310}); });
    open([](QWindow &window) {
        window.setGeometry(window.screen()->availableGeometry());
        QCoreApplication::processEvents();
        window.setWindowStates(Qt::WindowMaximized);
    });
    Qt::WindowStates states;
    open({}, &states);
    EXPECT_EQ(states, Qt::WindowMaximized);
    QWindow window; // as it is before it spreads out
    const WindowPlacement placement(window, settings());
    EXPECT_EQ(window.size(), QSize(420, 310));
}

TEST_F(PlacementTest, aFullScreenIsLeftWithTheProgram)
{
    open([](QWindow &window) { move(window, {40, 50, 420, 310}); });
    open([](QWindow &window) { window.showFullScreen(); });
    Qt::WindowStates states;
    EXPECT_EQ(open({}, &states), QRect(40, 50, 420, 310));
    EXPECT_EQ(states, Qt::WindowNoState);
}

struct SingleInstanceTest : testing::Test
{
    std::unique_ptr<SingleInstance> process(const QString &name = u"a"_s) const
    {
        return std::make_unique<SingleInstance>(folder, name);
    }

    /// Whether a later start opens a window, while this process answers, and does `meanwhile`.
    bool opensAnother(const std::function<void()> &meanwhile = [] {}) const
    {
        auto later = std::async(std::launch::async, [this] { return process()->opensWindow("token"); });
        while (later.wait_for(1ms) != std::future_status::ready) {
            QCoreApplication::processEvents();
            meanwhile();
        }
        return later.get();
    }

    Scratch scratch;
    const QString folder = pathText(scratch.path());
};

TEST_F(SingleInstanceTest, aLaterStartAsksTheFirstForItsWindow)
{
    auto first = process();
    EXPECT_TRUE(first->opensWindow({}));
    EXPECT_TRUE(process(u"b"_s)->opensWindow({}));
    QByteArrayList asked;
    first->serve([&asked](const QByteArray &token) {
        asked.append(token);
        return true;
    });
    EXPECT_FALSE(opensAnother());
    EXPECT_FALSE(opensAnother());
    EXPECT_EQ(asked, QByteArrayList({"token", "token"}));
    first.reset();
    EXPECT_TRUE(process()->opensWindow({}));
}

TEST_F(SingleInstanceTest, aLaterStartWaitsForOneThatJustStarts)
{
    const auto first = process();
    EXPECT_TRUE(first->opensWindow({}));
    QElapsedTimer timer;
    timer.start();
    bool serves = false;
    EXPECT_FALSE(opensAnother([&] {
        if (!serves && timer.hasExpired(200)) {
            first->serve([](const QByteArray &) { return true; });
            serves = true;
        }
    }));
    EXPECT_TRUE(serves);
}

TEST_F(SingleInstanceTest, aLaterStartTakesThePlaceOfOneThatEndsWhileItIsAsked)
{
    auto first = process();
    EXPECT_TRUE(first->opensWindow({}));
    int asked = 0;
    first->serve([&asked](const QByteArray &) { return ++asked == 0; }); // its window is gone
    SingleInstance second(folder, u"a"_s);
    auto opens = std::async(std::launch::async, [&second] { return second.opensWindow({}); });
    while (opens.wait_for(1ms) != std::future_status::ready) {
        QCoreApplication::processEvents();
        if (asked == 2)
            first.reset();
    }
    EXPECT_TRUE(opens.get());
    second.serve([](const QByteArray &) { return true; });
    EXPECT_FALSE(opensAnother());
}

TEST_F(SingleInstanceTest, oneThatDoesNotAnswerIsReplaced)
{
    const auto stuck = process();
    EXPECT_TRUE(stuck->opensWindow({}));
    stuck->serve([](const QByteArray &) { return false; });
    SingleInstance second(folder, u"a"_s);
    EXPECT_TRUE(std::async(std::launch::async, [&second] { return second.opensWindow({}); }).get());
    second.serve([](const QByteArray &) { return true; });
    EXPECT_FALSE(opensAnother());
}

TEST_F(SingleInstanceTest, whatADeadProcessLeftDoesNotStandInTheWay)
{
    const pid_t child = fork();
    if (child == 0) {
        const auto killed = process();
        killed->opensWindow({});
        killed->serve({});
        kill(getpid(), SIGKILL);
    }
    waitpid(child, nullptr, 0);
    EXPECT_TRUE(QFile::exists(folder + u"/a.socket"_s));
    const auto first = process();
    EXPECT_TRUE(first->opensWindow({}));
    first->serve([](const QByteArray &) { return true; });
    EXPECT_FALSE(opensAnother());
    EXPECT_TRUE(SingleInstance(folder + u"/missing"_s, u"a"_s).opensWindow({}));
}

} // namespace
} // namespace vornel

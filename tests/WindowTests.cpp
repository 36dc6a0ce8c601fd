/// What the window shares with other starts of the program: its place, and being the only one.

#include "Scratch.h"

#include <VORNELApp/SingleInstance.h>
#include <VORNELApp/WindowPlacement.h>
#include <VORNELCore/SerializedForms.h>

#include <QGuiApplication>
#include <QScreen>
#include <QSignalSpy>

#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <functional>
#include <optional>
#include <thread>

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

TEST(SingleInstanceTest, aLaterStartAsksTheFirstForItsWindow)
{
    const Scratch scratch;
    const QString folder = pathText(scratch.path());
    std::optional<SingleInstance> first(std::in_place, folder, u"a"_s);
    EXPECT_TRUE(first->isFirst());
    EXPECT_TRUE(SingleInstance(folder, u"b"_s).isFirst());

    QSignalSpy asked(&*first, &SingleInstance::windowAsked);
    bool hasHeard = false;
    std::thread later([&folder, &hasHeard] {
        const SingleInstance second(folder, u"a"_s);
        hasHeard = !second.isFirst() && second.askForWindow("token");
    });
    EXPECT_TRUE(asked.wait());
    QCoreApplication::processEvents();
    later.join();
    EXPECT_TRUE(hasHeard);
    EXPECT_EQ(asked.value(0).value(0).toByteArray(), "token");

    first.reset();
    EXPECT_TRUE(SingleInstance(folder, u"a"_s).isFirst());
}

TEST(SingleInstanceTest, whatADeadProcessLeftDoesNotStandInTheWay)
{
    const Scratch scratch;
    const QString folder = pathText(scratch.path());
    const pid_t child = fork();
    if (child == 0) {
        const SingleInstance killed(folder, u"a"_s);
        kill(getpid(), SIGKILL);
    }
    waitpid(child, nullptr, 0);
    EXPECT_TRUE(QFile::exists(folder + u"/a.lock"_s));
    EXPECT_TRUE(SingleInstance(folder, u"a"_s).isFirst());
    EXPECT_TRUE(SingleInstance(folder + u"/missing"_s, u"a"_s).isFirst());
}

} // namespace
} // namespace vornel

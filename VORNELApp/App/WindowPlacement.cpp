#include "WindowPlacement.h"

#include <QGuiApplication>
#include <QScreen>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vornel {

namespace {

const QString placeKey = u"window/place"_s;
const QString maximizedKey = u"window/isMaximized"_s;
constexpr int quietTime = 500; // milliseconds without a change, after which it is written down

/// The screen that shows enough of a window's upper edge to take hold of it; null when none does.
const QScreen *screenOf(const QRect &place)
{
    const QRect handle(place.center().x() - 50, place.top(), 100, 20);
    const QList<QScreen *> screens = QGuiApplication::screens();
    const auto found = std::ranges::find_if(
        screens, [&handle](const QScreen *screen) { return screen->availableGeometry().contains(handle); });
    return found == screens.end() ? nullptr : *found;
}

} // namespace

WindowPlacement::WindowPlacement(QWindow &window, std::shared_ptr<QSettings> settings)
    : m_window(window), m_settings(std::move(settings))
{
    restore();
    m_later.setSingleShot(true);
    m_later.setInterval(quietTime);
    connect(&m_later, &QTimer::timeout, this, &WindowPlacement::save);
    for (const auto change :
         {&QWindow::xChanged, &QWindow::yChanged, &QWindow::widthChanged, &QWindow::heightChanged})
        connect(&m_window, change, this, &WindowPlacement::note);
    connect(&m_window, &QWindow::windowStateChanged, this, &WindowPlacement::note);
    connect(&m_window, &QWindow::visibleChanged, this, [this](bool isVisible) {
        if (!isVisible)
            look(); // as long as its frame is known
    });
}

WindowPlacement::~WindowPlacement()
{
    if (m_later.isActive())
        save();
}

void WindowPlacement::show()
{
    if (m_isMaximized)
        m_window.showMaximized();
    else
        m_window.show();
}

void WindowPlacement::restore()
{
    m_isMaximized = m_settings->value(maximizedKey, false).toBool();
    m_normal = m_settings->value(placeKey).toRect();
    const QScreen *screen = m_normal.isEmpty() ? nullptr : screenOf(m_normal);
    const QSize available = (screen == nullptr ? m_window.screen() : screen)->availableGeometry().size();
    m_window.setMinimumSize(m_window.minimumSize().boundedTo(available));
    const bool fits = m_normal.size().boundedTo(available) == m_normal.size();
    const bool isTaken = !m_normal.isEmpty() && (screen != nullptr || fits);
    const QSize size = isTaken ? m_normal.size().expandedTo(m_window.minimumSize()) : m_window.size();
    m_window.resize(size.boundedTo(available));
    if (screen != nullptr)
        m_window.setFramePosition(m_normal.topLeft());
}

void WindowPlacement::note()
{
    if (m_window.isVisible())
        m_later.start();
}

void WindowPlacement::look()
{
    // Both together, and after a pause: a window learns its new size and its new state in either order.
    const Qt::WindowStates states = m_window.windowStates();
    if (states.testFlag(Qt::WindowMinimized))
        return;
    m_isMaximized = states.testFlag(Qt::WindowMaximized);
    if (states == Qt::WindowNoState)
        m_normal = QRect(m_window.framePosition(), m_window.size());
}

void WindowPlacement::save()
{
    if (m_window.isVisible())
        look();
    m_settings->setValue(placeKey, m_normal);
    m_settings->setValue(maximizedKey, m_isMaximized);
    m_settings->sync();
}

} // namespace vornel

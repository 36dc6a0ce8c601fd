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

/// Whether enough of a window's upper edge is on a screen to take hold of it.
bool isReachable(const QRect &place)
{
    const QRect handle(place.center().x() - 50, place.top(), 100, 20);
    return std::ranges::any_of(QGuiApplication::screens(), [&handle](const QScreen *screen) {
        return screen->availableGeometry().contains(handle);
    });
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
    if (m_normal.isEmpty())
        return;
    m_window.resize(m_normal.size().expandedTo(m_window.minimumSize()));
    if (isReachable(m_normal))
        m_window.setFramePosition(m_normal.topLeft());
}

void WindowPlacement::note()
{
    if (!m_window.isVisible() || m_window.windowStates().testFlag(Qt::WindowMinimized))
        return;
    m_isMaximized = m_window.windowStates() != Qt::WindowNoState;
    if (!m_isMaximized)
        m_normal = QRect(m_window.framePosition(), m_window.size());
    m_later.start();
}

void WindowPlacement::save()
{
    m_settings->setValue(placeKey, m_normal);
    m_settings->setValue(maximizedKey, m_isMaximized);
    m_settings->sync();
}

} // namespace vornel

#pragma once

#include <QSettings>
#include <QTimer>
#include <QWindow>

#include <memory>

namespace vornel {

/// Gives a window the size and the place that it had at its last end, and remembers those it has.
class WindowPlacement : public QObject
{
public:
    /// Places `window`, which must not be shown yet and must outlive this.
    WindowPlacement(QWindow &window, std::shared_ptr<QSettings> settings);
    ~WindowPlacement() override;
    Q_DISABLE_COPY_MOVE(WindowPlacement)

    /// Shows the window, over the whole screen if that is how it was left.
    void show();

private:
    void restore();
    void note();
    void look();
    void save();

    QWindow &m_window;
    std::shared_ptr<QSettings> m_settings;
    QTimer m_later;
    QRect m_normal; ///< the frame's corner, and the size without the frame, when not over the whole screen
    bool m_isMaximized = false;
};

} // namespace vornel

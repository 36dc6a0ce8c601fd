#pragma once

#include "AppEnvironment.h"

#include <QQmlApplicationEngine>

class QQuickWindow;

namespace vornel {

class WindowPlacement;

/// The application: one environment, the model made from it, and the one window on that model.
class VORNELApp
{
public:
    explicit VORNELApp(AppEnvironment live);
    ~VORNELApp();
    Q_DISABLE_COPY_MOVE(VORNELApp)

    const AppEnvironment environment;

    AppModel &model() { return *m_model; }
    QQmlEngine &engine() { return m_engine; }

    /// Opens the window where it was last; null when it can't be made.
    QQuickWindow *showWindow();

    /// Brings the open window to the front, even one that waits to be closed; tells whether there is one.
    /// `token` is what the desktop gave to whoever asked for it.
    bool raiseWindow(const QByteArray &token);

    /// Closes the window as soon as what runs is done. Nothing is asked: unsaved texts are kept.
    void end();

    /// Makes fonts, icons and modules known to an engine that shows the product's components.
    static void prepare(QQmlEngine &engine);

private:
    QQuickWindow *window() const;

    std::unique_ptr<AppModel> m_model;
    QQmlApplicationEngine m_engine; // after the model, so that no screen outlives it
    std::unique_ptr<WindowPlacement> m_placement;
};

} // namespace vornel

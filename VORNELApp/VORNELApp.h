#pragma once

#include "AppEnvironment.h"

#include <QQmlApplicationEngine>

class QQuickWindow;

namespace vornel {

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

    /// Opens the window; null when it can't be made.
    QQuickWindow *showWindow();

    /// Makes fonts, icons and modules known to an engine that shows the product's components.
    static void prepare(QQmlEngine &engine);

private:
    std::unique_ptr<AppModel> m_model;
    QQmlApplicationEngine m_engine; // after the model, so that no screen outlives it
};

} // namespace vornel

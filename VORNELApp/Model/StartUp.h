#pragma once

#include "AppStates.h"
#include "Library.h"

#include <QSettings>

#include <memory>

namespace vornel {

/// Opens the workspace, and leads through the onboarding until an import has ended it.
class StartUp : public QObject
{
    Q_OBJECT

public:
    /// `settings` remember that the onboarding is over.
    StartUp(std::shared_ptr<WindowServicing> service, Operations &operations, Library &library,
            std::shared_ptr<QSettings> settings);

    const Phase &phase() const { return m_phase; }
    OnboardingStep step() const { return m_step; }

    /// Opens the workspace and decides what the window shows. Never throws: a failure becomes the phase.
    QCoro::Task<> start(std::filesystem::path workspace, std::filesystem::path claudeRoot,
                        std::filesystem::path codexRoot);

    /// Goes to the next page, or the one before (-1), if there is one.
    void turn(int pages);

    /// The onboarding is over, on this machine and for good.
    void complete();

Q_SIGNALS:
    void phaseChanged();
    void stepChanged();

private:
    void setPhase(const Phase &phase);

    const std::shared_ptr<WindowServicing> m_service;
    Operations &m_operations;
    Library &m_library;
    const std::shared_ptr<QSettings> m_settings;
    Phase m_phase;
    OnboardingStep m_step = OnboardingStep::library;
};

} // namespace vornel

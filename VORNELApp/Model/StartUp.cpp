#include "StartUp.h"

#include <VORNELCore/Errors/ErrorMessage.h>

#include <QCoro/QCoroFuture>

#include <utility>

using namespace Qt::StringLiterals;

namespace vornel {

namespace {

const QString onboardingCompletedKey = u"com.brindlecove.vornel.onboarding.completed.v3"_s;

} // namespace

StartUp::StartUp(std::shared_ptr<WindowServicing> service, Operations &operations, Library &library,
                 std::shared_ptr<QSettings> settings)
    : m_service(std::move(service)),
      m_operations(operations),
      m_library(library),
      m_settings(std::move(settings))
{}

QCoro::Task<> StartUp::start(std::filesystem::path workspace, std::filesystem::path claudeRoot,
                             std::filesystem::path codexRoot)
{
    const Operations::Running running(m_operations);
    setPhase(Phase::launching());
    m_operations.clearError();
    try {
        m_library.show(co_await m_service->bootstrap(workspace, claudeRoot, codexRoot));
        const bool isOnboarded = m_settings->value(onboardingCompletedKey, false).toBool();
        setPhase(isOnboarded ? Phase::ready() : Phase::onboarding());
    } catch (const std::exception &error) {
        setPhase(Phase::failed(errorMessage(error), failedFolder(error)));
    }
}

void StartUp::turn(int pages)
{
    const OnboardingStep step = onboardingStep(static_cast<int>(m_step) + pages).value_or(m_step);
    if (std::exchange(m_step, step) != step)
        Q_EMIT stepChanged();
}

void StartUp::complete()
{
    m_settings->setValue(onboardingCompletedKey, true);
    m_settings->sync(); // before the phase: a crash after it opens the library, too
    setPhase(Phase::ready());
}

void StartUp::setPhase(const Phase &phase)
{
    if (m_phase == phase)
        return;
    m_phase = phase;
    Q_EMIT phaseChanged();
}

} // namespace vornel

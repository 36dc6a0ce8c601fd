#pragma once

#include <VORNELCore/Records/SerializedForms.h>

#include <QObject>
#include <QString>
#include <QUrl>

#include <filesystem>
#include <optional>
#include <utility>

namespace vornel {

/// The choices of the application model that QML names too.
namespace AppStates {
Q_NAMESPACE
Q_CLASSINFO("RegisterEnumClassesUnscoped", "false")

/// Where the application stands.
enum class PhaseName { launching, onboarding, ready, failed };
Q_ENUM_NS(PhaseName)

/// The pages of the onboarding, in their order.
enum class OnboardingStep { library, canonical, synchronized, protected_, importSkills };
Q_ENUM_NS(OnboardingStep)

/// What the sidebar leads to, in its order.
enum class Destination { library, needsAttention, trash };
Q_ENUM_NS(Destination)

} // namespace AppStates

using AppStates::Destination;
using AppStates::OnboardingStep;
using AppStates::PhaseName;

/// The application's phase. Only `failed` carries a message, and maybe a folder; the message tells two apart.
class Phase
{
    Q_GADGET
    Q_PROPERTY(vornel::AppStates::PhaseName name READ name)
    Q_PROPERTY(QString message READ message)
    Q_PROPERTY(QUrl folder READ folder)
    Q_PROPERTY(bool hasFolder READ hasFolder)

public:
    Phase() = default;

    static Phase launching() { return Phase(PhaseName::launching); }
    static Phase onboarding() { return Phase(PhaseName::onboarding); }
    static Phase ready() { return Phase(PhaseName::ready); }
    static Phase failed(QString message, const std::filesystem::path &folder = {});

    PhaseName name() const { return m_name; }

    /// What the user reads about the failure; empty in the other phases.
    QString message() const { return m_message; }

    /// The folder to look at after the failure; empty where none is known.
    QUrl folder() const { return m_folder; }
    bool hasFolder() const { return !m_folder.isEmpty(); }

    bool operator==(const Phase &other) const
    {
        return m_name == other.m_name && m_message == other.m_message;
    }

private:
    explicit Phase(PhaseName name, QString message = {}) : m_name(name), m_message(std::move(message)) {}

    PhaseName m_name = PhaseName::launching;
    QString m_message;
    QUrl m_folder;
};

inline Phase Phase::failed(QString message, const std::filesystem::path &folder)
{
    Phase phase(PhaseName::failed, std::move(message));
    if (!folder.empty())
        phase.m_folder = QUrl::fromLocalFile(pathText(folder));
    return phase;
}

/// The step of this place in the order, counted from 0; nothing outside of it.
constexpr std::optional<OnboardingStep> onboardingStep(int rawValue)
{
    const bool exists = rawValue >= 0 && rawValue <= static_cast<int>(OnboardingStep::importSkills);
    return exists ? std::optional(static_cast<OnboardingStep>(rawValue)) : std::nullopt;
}

} // namespace vornel

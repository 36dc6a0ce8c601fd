#include "Studio.h"

#include <VORNELInfrastructure/Workspace/DefaultWorkspaceLocator.h>

#include <QCoreApplication>
#include <QElapsedTimer>

#include <algorithm>
#include <fstream>
#include <map>
#include <string>

namespace fs = std::filesystem;

namespace vornel {

Studio::Studio(bool isBroken)
{
    const fs::path root = path("");
    for (const char *assistant : {"claude", "codex"})
        fs::copy(fs::path(VORNEL_DEMO) / assistant, root / assistant, fs::copy_options::recursive);
    const std::map<std::string, std::string> variables{
        {"VORNEL_TEST_MODE", "1"},
        {"VORNEL_WORKSPACE_PATH", root / (isBroken ? "claude/VORNEL" : "VORNEL")},
        {"VORNEL_CLAUDE_SKILLS_PATH", root / "claude"},
        {"VORNEL_CODEX_SKILLS_PATH", root / "codex"},
    };
    const Environment environment = [&variables](const char *name) {
        const auto found = variables.find(name);
        return found == variables.end() ? nullptr : found->second.c_str();
    };
    m_application.emplace(AppEnvironment::live(DefaultWorkspaceLocator(root), environment, root));
}

fs::path Studio::path(const char *below) const
{
    return fs::path(m_folder.path().toStdString()) / below;
}

void Studio::occupy(const fs::path &folder) const
{
    fs::create_directories(path("") / folder);
    std::ofstream(path("") / folder / "notes.txt") << "à garder";
}

QUuid Studio::idOf(const QString &slug)
{
    const QList<SkillSummary> skills = model().overview()->skills;
    return std::ranges::find(skills, slug, &SkillSummary::slug)->id;
}

void Studio::open(const QString &slug)
{
    model().selectSkill(idOf(slug));
    settle();
    rest();
}

void Studio::settle()
{
    QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    while (model().isBusy())
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    QCoreApplication::processEvents();
}

void Studio::quieten()
{
    settle();
    while (!model().transientMessage().isEmpty())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

void Studio::rest()
{
    QElapsedTimer timer;
    for (timer.start(); timer.elapsed() < 300;)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
}

} // namespace vornel

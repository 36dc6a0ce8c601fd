#pragma once

#include "Scenario.h"
#include "Scratch.h"
#include "WorkspaceState.h"

namespace vornel {

/// A scenario's roots, which can be put back to how they were at the start as often as it is interrupted.
class Rehearsal : public Scratch
{
public:
    /// Builds the starting state, and lets the operation run undisturbed once to see what it makes of it.
    explicit Rehearsal(const Scenario &scenario);

    /// Puts back the starting state. `prepare` runs while there is nothing below the folder.
    void reset(const std::function<void()> &prepare = [] {}) const;

    /// Starts a service on the roots, as a new process would.
    std::unique_ptr<LocalWorkspaceService> start(std::shared_ptr<FileSystem> files) const;

    /// The folder that holds the roots and "text".
    std::filesystem::path folder() const { return path("now"); }

    const Scenario &scenario() const { return m_scenario; }
    const WorkspaceState &before() const { return m_before; }
    const WorkspaceState &after() const { return m_after; }

private:
    const Scenario &m_scenario;
    WorkspaceState m_before;
    WorkspaceState m_after;
};

} // namespace vornel

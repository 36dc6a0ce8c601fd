#pragma once

#include "WatchedFolders.h"

#include <VORNELCore/Services/WorkspaceWatching.h>

#include <chrono>
#include <mutex>
#include <optional>
#include <thread>

namespace vornel {

/// How long what happens is gathered: until nothing has happened for a while, but not for ever.
struct GatheringTime
{
    std::chrono::milliseconds pause{500};
    std::chrono::milliseconds longest{1500};
};

/// Watches the folders of a workspace and its targets from the first overview on. The service tells it when
/// an overview begins: what it changed itself before that is forgotten with all the rest, so that only
/// changes by others are told, and those of its own that no overview follows.
class WorkspaceWatch : public WorkspaceWatching
{
public:
    /// `mostFolders` is a limit beside the kernel's own.
    explicit WorkspaceWatch(GatheringTime time = {}, int mostFolders = std::numeric_limits<int>::max());

    /// To be called when an overview begins, before it reads anything. The first time, it opens every folder
    /// that is to be watched.
    void beginOverview(const FileSystem &files, const Configuration &config);

    bool isOverviewOutdated() const override { return m_isOutdated; }
    bool isComplete() const override { return m_folders.isComplete(); }

private:
    using Clock = std::chrono::steady_clock;

    void run(const std::stop_token &end);
    void await(bool isGathering) const;
    void take();
    bool conclude();

    const GatheringTime m_time;
    const Descriptor m_alarm; ///< can be read once the thread is to end
    std::atomic<bool> m_isOutdated = false;
    std::mutex m_mutex; ///< for what follows
    FolderEvents m_events;
    WatchedFolders m_folders{m_events};
    std::optional<Clock::time_point> m_first; ///< when something happened that isn't read or told yet
    Clock::time_point m_last;
    std::jthread m_thread{[this](const std::stop_token &end) { run(end); }}; // last, as it uses the others
};

} // namespace vornel

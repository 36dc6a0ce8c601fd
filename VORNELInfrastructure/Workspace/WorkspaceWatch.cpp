#include "WorkspaceWatch.h"

#include <poll.h>
#include <sys/eventfd.h>

#include <algorithm>
#include <array>

namespace vornel {

WorkspaceWatch::WorkspaceWatch(GatheringTime time, int mostFolders)
    : m_time(time), m_alarm(::eventfd(0, EFD_CLOEXEC)), m_events(mostFolders)
{}

void WorkspaceWatch::beginOverview(const FileSystem &files, const Configuration &config)
{
    const std::scoped_lock lock(m_mutex);
    take();
    m_folders.follow(files, config);
    m_first.reset();
    m_isOutdated = false;
}

void WorkspaceWatch::run(const std::stop_token &end)
{
    const std::stop_callback alarm(end, [this] { ::eventfd_write(m_alarm.fd(), 1); });
    bool isGathering = false;
    while (!end.stop_requested()) {
        await(isGathering);
        bool isOutdated = false;
        {
            const std::scoped_lock lock(m_mutex);
            take();
            isOutdated = conclude();
            isGathering = m_first.has_value();
        }
        if (isOutdated)
            Q_EMIT overviewOutdated();
    }
}

/// Waits for an event, or while many are expected for a part of the pause.
void WorkspaceWatch::await(bool isGathering) const
{
    std::array<pollfd, 2> sources{
        {{m_alarm.fd(), POLLIN, 0}, {isGathering ? -1 : m_events.descriptor(), POLLIN, 0}}};
    ::poll(sources.data(), sources.size(), isGathering ? static_cast<int>(m_time.pause.count() / 5) : -1);
}

void WorkspaceWatch::take()
{
    bool isConcerned = false;
    for (const FolderEvents::Event &event : m_events.read())
        isConcerned |= m_folders.concerns(event);
    if (!isConcerned)
        return;
    m_last = Clock::now();
    m_first = m_first.value_or(m_last);
}

/// Tells whether it is time to tell of what has happened.
bool WorkspaceWatch::conclude()
{
    if (!m_first || Clock::now() < std::min(m_last + m_time.pause, *m_first + m_time.longest))
        return false;
    m_first.reset();
    m_isOutdated = true;
    return true;
}

} // namespace vornel

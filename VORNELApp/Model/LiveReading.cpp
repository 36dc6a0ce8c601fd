#include "LiveReading.h"

#include <utility>

namespace vornel {

LiveReading::LiveReading(std::shared_ptr<WorkspaceWatching> watch, Library &library,
                         const Operations &operations)
    : m_watch(std::move(watch)), m_library(library), m_operations(operations)
{
    if (!m_watch)
        return;
    connect(m_watch.get(), &WorkspaceWatching::overviewOutdated, this, &LiveReading::readWhatHasChanged,
            Qt::QueuedConnection);
    connect(&m_operations, &Operations::isWorkingChanged, this, &LiveReading::readWhatHasChanged);
    // Later, when the reading is over.
    connect(&m_library, &Library::wasRead, this, &LiveReading::readWhatHasChanged, Qt::QueuedConnection);
    connect(&m_library, &Library::wasRead, this, [this] { m_sinceReading.start(); });
}

void LiveReading::lookForChanges()
{
    constexpr qint64 soon = 2000; // who goes to and fro between two windows has the library read once
    if (m_watch &&
        (m_watch->isOverviewOutdated() || (!m_watch->isComplete() && m_sinceReading.hasExpired(soon))))
        read();
}

void LiveReading::readWhatHasChanged()
{
    if (m_watch->isOverviewOutdated())
        read();
}

/// What is held up comes once that is over, which is told.
void LiveReading::read()
{
    if (!m_isStopped && m_library.overview() && !m_library.isReading() && !m_operations.isWorking())
        m_library.readQuietly();
}

} // namespace vornel

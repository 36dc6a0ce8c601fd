#include "ParallelMap.h"

#include <QSemaphore>
#include <QThread>
#include <QThreadPool>

#include <algorithm>
#include <atomic>
#include <exception>
#include <mutex>

namespace vornel {

namespace {

class Helpers : public QThreadPool
{
public:
    Helpers()
    {
        // Every thread may hold a whole depth of folders open, and descriptors are few.
        constexpr int mostThreads = 8;
        setMaxThreadCount(std::min(QThread::idealThreadCount(), mostThreads) - 1);
    }
};

/// The indexes that are still to do, and what went wrong first.
class Loop
{
public:
    Loop(std::size_t count, const std::function<void(std::size_t)> &work) : m_count(count), m_work(work) {}

    void run()
    {
        for (std::size_t index = m_next++; index < m_count; index = m_next++) {
            try {
                m_work(index);
            } catch (...) {
                stop(index, std::current_exception());
            }
        }
    }

    void rethrowFailure() const
    {
        if (m_failure)
            std::rethrow_exception(m_failure);
    }

private:
    void stop(std::size_t index, std::exception_ptr failure)
    {
        const std::scoped_lock lock(m_mutex);
        m_next = m_count; // indexes are taken in order: every lower one is done or under way
        if (!m_failure || index < m_failedIndex) {
            m_failure = std::move(failure);
            m_failedIndex = index;
        }
    }

    const std::size_t m_count;
    const std::function<void(std::size_t)> &m_work;
    std::atomic<std::size_t> m_next = 0;
    std::mutex m_mutex;
    std::exception_ptr m_failure;
    std::size_t m_failedIndex = 0;
};

} // namespace

void parallelFor(std::size_t count, const std::function<void(std::size_t)> &work)
{
    static Helpers helpers;
    Loop loop(count, work);
    QSemaphore finished;
    int started = 0;
    const auto help = [&loop, &finished] {
        loop.run();
        finished.release();
    };
    const int wanted = static_cast<int>(std::min<std::size_t>(
                           count, static_cast<std::size_t>(QThread::idealThreadCount()))) -
                       1;
    while (started < wanted && helpers.tryStart(help))
        ++started;
    loop.run();
    finished.acquire(started);
    loop.rethrowFailure();
}

} // namespace vornel

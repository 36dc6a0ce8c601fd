#include "ParallelMap.h"

#include <VORNELInfrastructure/Disk/BestEffort.h>

#include <QThread>

#include <sys/resource.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <condition_variable>
#include <deque>
#include <exception>
#include <mutex>
#include <thread>

namespace vornel {

namespace {

/// The threads that help: one for each core that the process may use, but for the caller's.
class Helpers
{
public:
    Helpers()
    {
        for (std::size_t number = 0; number < m_idle; ++number)
            m_threads.emplace_back([this](const std::stop_token &end) { run(end); });
    }

    /// Lets an idle thread do `work`. Returns false when none is idle.
    bool tryStart(std::function<void()> work)
    {
        const std::scoped_lock lock(m_mutex);
        if (m_idle == 0)
            return false;
        --m_idle;
        m_work.push_back(std::move(work));
        m_changed.notify_one();
        return true;
    }

private:
    static std::size_t threadCount()
    {
        // Each thread may hold a descriptor for every level of a tree, two while it copies, and a process has
        // few.
        constexpr int mostThreads = 8;
        constexpr rlim_t descriptorsPerThread = 220;
        rlimit limit{};
        ::getrlimit(RLIMIT_NOFILE, &limit);
        const auto affordable =
            static_cast<int>(std::min<rlim_t>(limit.rlim_cur / descriptorsPerThread, mostThreads));
        return static_cast<std::size_t>(std::clamp(QThread::idealThreadCount(), 1, std::max(affordable, 1)) -
                                        1);
    }

    void run(const std::stop_token &end)
    {
        std::unique_lock lock(m_mutex);
        while (m_changed.wait(lock, end, [this] { return !m_work.empty(); })) {
            const std::function<void()> work = std::move(m_work.front());
            m_work.pop_front();
            lock.unlock();
            work();
            lock.lock();
            ++m_idle;
        }
    }

    std::mutex m_mutex;
    std::condition_variable_any m_changed;
    std::deque<std::function<void()>> m_work;
    std::size_t m_idle = threadCount();
    std::vector<std::jthread> m_threads; // last, so that they end before what they use
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

    bool addHelper(Helpers &helpers)
    {
        const std::scoped_lock lock(m_mutex);
        const bool isStarted = helpers.tryStart([this] { help(); });
        m_helpers += isStarted ? 1 : 0;
        return isStarted;
    }

    void awaitHelpers()
    {
        std::unique_lock lock(m_mutex);
        m_changed.wait(lock, [this] { return m_helpers == 0; });
    }

    void rethrowFailure() const
    {
        if (m_failure)
            std::rethrow_exception(m_failure);
    }

private:
    void help()
    {
        run();
        const std::scoped_lock lock(m_mutex);
        --m_helpers;
        m_changed.notify_one(); // while locked, as the loop is gone once the caller has seen it
    }

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
    std::condition_variable m_changed;
    int m_helpers = 0;
    std::exception_ptr m_failure;
    std::size_t m_failedIndex = 0;
};

} // namespace

void parallelFor(std::size_t count, const std::function<void(std::size_t)> &work)
{
    static Helpers helpers;
    Loop loop(count, work);
    for (std::size_t wanted = count; wanted > 1 && loop.addHelper(helpers);)
        --wanted;
    loop.run();
    loop.awaitHelpers();
    loop.rethrowFailure();
}

void together(const std::function<void()> &one, const std::function<void()> &other)
{
    std::array<std::exception_ptr, 2> failures;
    parallelFor(2, [&](std::size_t index) { failures.at(index) = failureOf(index == 0 ? one : other); });
    for (const std::exception_ptr &failure : failures) {
        if (failure)
            std::rethrow_exception(failure);
    }
}

} // namespace vornel

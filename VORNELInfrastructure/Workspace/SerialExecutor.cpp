#include "SerialExecutor.h"

namespace vornel {

void SerialExecutor::append(std::function<void()> function)
{
    {
        const std::scoped_lock lock(m_mutex);
        m_functions.push_back(std::move(function));
    }
    m_changed.notify_one();
}

void SerialExecutor::run(const std::stop_token &end)
{
    std::unique_lock lock(m_mutex);
    while (true) {
        m_changed.wait(lock, end, [this] { return !m_functions.empty(); });
        if (m_functions.empty())
            return;
        std::function<void()> function = std::move(m_functions.front());
        m_functions.pop_front();
        lock.unlock();
        function();
        function = nullptr; // destroys what it holds while the lock is free
        lock.lock();
    }
}

} // namespace vornel

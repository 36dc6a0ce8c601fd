#pragma once

#include <QFuture>
#include <QPromise>
#include <QThreadPool>

#include <exception>
#include <memory>
#include <type_traits>

namespace vornel {

/// Runs functions one at a time on a thread of its own, in the order in which they were submitted. Its
/// destructor waits for all of them.
class SerialExecutor
{
public:
    SerialExecutor() { m_pool.setMaxThreadCount(1); }

    /// The function's result, or exactly what it threw. The function is given the promise, to report
    /// progress.
    template <typename Result, typename Function>
    QFuture<Result> submit(Function function)
    {
        auto promise = std::make_shared<QPromise<Result>>();
        promise->start();
        m_pool.start([promise, function = std::move(function)] {
            try {
                promise->addResult(function(*promise));
            } catch (...) {
                promise->setException(std::current_exception());
            }
            promise->finish();
        });
        return promise->future();
    }

private:
    QThreadPool m_pool;
};

} // namespace vornel

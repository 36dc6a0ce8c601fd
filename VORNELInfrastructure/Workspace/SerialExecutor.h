#pragma once

#include <QFuture>
#include <QPromise>

#include <condition_variable>
#include <deque>
#include <exception>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>
#include <type_traits>

namespace vornel {

/// Runs functions one at a time on a thread of its own, in the order in which they were submitted. Its
/// destructor waits for all of them.
class SerialExecutor
{
public:
    /// Returns the function's result, or the very exception that it threw. The function is given the promise,
    /// to report progress.
    template <typename Result, typename Function>
    QFuture<Result> submit(Function function)
    {
        auto promise = std::make_shared<QPromise<Result>>();
        promise->start();
        QFuture<Result> future = promise->future();
        append([promise = std::move(promise), function = std::move(function)] {
            try {
                if constexpr (std::is_void_v<Result>)
                    function(*promise);
                else
                    promise->addResult(function(*promise));
            } catch (...) {
                promise->setException(std::current_exception());
            }
            promise->finish();
        });
        return future;
    }

    /// The same for a function that is called again and again until it returns a result. What others have
    /// submitted meanwhile comes between two calls.
    template <typename Result, typename Function>
    QFuture<Result> submitInTurns(Function function)
    {
        auto promise = std::make_shared<QPromise<Result>>();
        promise->start();
        takeTurn(promise, function);
        return promise->future();
    }

private:
    template <typename Result, typename Function>
    void takeTurn(std::shared_ptr<QPromise<Result>> promise, Function function)
    {
        append([this, promise = std::move(promise), function = std::move(function)] {
            try {
                std::optional<Result> result = function(*promise);
                if (!result)
                    return takeTurn(promise, function);
                promise->addResult(std::move(*result));
            } catch (...) {
                promise->setException(std::current_exception());
            }
            promise->finish();
        });
    }

    void append(std::function<void()> function);
    void run(const std::stop_token &end);

    std::mutex m_mutex;
    std::condition_variable_any m_changed;
    std::deque<std::function<void()>> m_functions;
    std::jthread m_thread{[this](const std::stop_token &end) { run(end); }}; // last, as it uses the others
};

} // namespace vornel

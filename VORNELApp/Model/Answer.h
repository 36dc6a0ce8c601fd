#pragma once

#include "Outcome.h"

#include <QCoro/QCoroFuture>
#include <QCoro/QCoroTask>

#include <optional>

namespace vornel {

/// What a service has answered: a value, or why there is none.
template <typename T>
struct Answer
{
    std::optional<T> value = {};
    Outcome outcome = {};
};

/// Waits for a service, and never throws: for `QCoro::connect`, which calls no function on an object that has
/// gone meanwhile.
template <typename T>
QCoro::Task<Answer<T>> answerOf(QFuture<T> future)
{
    Answer<T> answer;
    try {
        answer.value = co_await future;
    } catch (const std::exception &error) {
        answer.outcome = Outcome::failedWith(error);
    }
    co_return answer;
}

/// The same where nothing is answered but how it ended.
inline QCoro::Task<Outcome> outcomeOf(QFuture<void> future)
{
    Outcome outcome;
    try {
        co_await future;
    } catch (const std::exception &error) {
        outcome = Outcome::failedWith(error);
    }
    co_return outcome;
}

} // namespace vornel

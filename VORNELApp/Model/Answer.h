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

} // namespace vornel

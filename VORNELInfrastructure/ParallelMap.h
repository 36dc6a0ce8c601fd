#pragma once

#include <QtConcurrentMap>

#include <exception>
#include <iterator>
#include <optional>
#include <type_traits>
#include <vector>

namespace vornel {

/// `function` applied to every item, on all cores, the results in the order of the items. When some calls
/// throw, the exception of the first such item is thrown once all are done. May be nested.
template <typename Items, typename Function>
auto parallelMap(const Items &items, const Function &function)
{
    using Item = std::remove_cvref_t<decltype(*std::begin(items))>;
    using Result = std::invoke_result_t<Function, const Item &>;
    struct Call
    {
        const Item *item;
        std::optional<Result> result;
        std::exception_ptr error;
    };

    std::vector<Call> calls;
    calls.reserve(static_cast<std::size_t>(std::size(items)));
    for (const Item &item : items)
        calls.push_back({&item, std::nullopt, nullptr});

    QtConcurrent::blockingMap(calls, [&function](Call &call) {
        try {
            call.result.emplace(function(*call.item));
        } catch (...) {
            call.error = std::current_exception();
        }
    });

    std::vector<Result> results;
    results.reserve(calls.size());
    for (Call &call : calls) {
        if (call.error)
            std::rethrow_exception(call.error);
        results.push_back(std::move(*call.result));
    }
    return results;
}

} // namespace vornel

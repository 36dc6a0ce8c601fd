#pragma once

#include <cstddef>
#include <functional>
#include <iterator>
#include <optional>
#include <type_traits>
#include <vector>

namespace vornel {

/// Calls `work` for every index below `count`, on up to eight cores. The caller works too, and helpers join
/// only while they are idle, so calls may be nested. When some throw, the exception of the lowest index is
/// thrown once all that began has ended; indexes above it may be left out.
void parallelFor(std::size_t count, const std::function<void(std::size_t)> &work);

/// Does both, side by side where a core is idle; when one throws, the other is done all the same. Throws the
/// exception of the first, or else that of the second.
void together(const std::function<void()> &one, const std::function<void()> &other);

/// `function` applied to every item as `parallelFor` does, the results in the order of the items.
template <typename Items, typename Function>
auto parallelMap(const Items &items, const Function &function)
{
    using Result = std::invoke_result_t<Function, decltype(*std::begin(items))>;
    const auto count = static_cast<std::size_t>(std::size(items));
    std::vector<std::optional<Result>> results(count);
    parallelFor(count, [&](std::size_t index) {
        results[index].emplace(function(*std::next(std::begin(items), static_cast<std::ptrdiff_t>(index))));
    });
    std::vector<Result> unwrapped;
    unwrapped.reserve(count);
    for (std::optional<Result> &result : results)
        unwrapped.push_back(std::move(*result));
    return unwrapped;
}

} // namespace vornel

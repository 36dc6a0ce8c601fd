#pragma once

#include <exception>

namespace vornel {

/// Runs an action whose failure is passed over, such as a clean-up after an error that is reported already.
template <typename Cleanup>
void bestEffort(const Cleanup &cleanup) noexcept
{
    try {
        cleanup();
    } catch (...) { // NOLINT(bugprone-empty-catch)
    }
}

/// Runs `step`; returns what it threw, to be reported later.
template <typename Step>
std::exception_ptr failureOf(const Step &step) noexcept
{
    try {
        step();
        return nullptr;
    } catch (...) {
        return std::current_exception();
    }
}

} // namespace vornel

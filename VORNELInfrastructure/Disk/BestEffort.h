#pragma once

#include <exception>

namespace vornel {

/// Runs a clean-up whose own failure changes nothing: what was thrown before is what is reported.
template <typename Cleanup>
void bestEffort(const Cleanup &cleanup) noexcept
{
    try {
        cleanup();
    } catch (...) { // NOLINT(bugprone-empty-catch)
    }
}

/// Runs `step`; returns what it threw, to be told later.
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

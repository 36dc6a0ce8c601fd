#pragma once

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

} // namespace vornel

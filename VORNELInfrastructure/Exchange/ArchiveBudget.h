#pragma once

#include <cstdint>

namespace vornel {

/// How much an archive may hold: more than any library, and less than fills a disk.
struct ArchiveLimits
{
    std::int64_t entries = 100'000;
    std::int64_t bytes = 2'147'483'648; ///< of all files, unpacked
};

/// Counts what an archive holds. Throws `integrityFailure` as soon as that is too much, whatever its size
/// says.
class ArchiveBudget
{
public:
    explicit ArchiveBudget(const ArchiveLimits &limits = {}) : m_left(limits), m_limits(limits) {}

    void takeEntry();
    void takeBytes(std::int64_t count);

private:
    ArchiveLimits m_left;
    ArchiveLimits m_limits;
};

} // namespace vornel

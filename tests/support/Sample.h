#pragma once

#include "Scenario.h"

#include <vector>

namespace vornel {

/// How many points there are from one of a sample to the next: 1 where the environment's `VORNEL_POINTS` is
/// "all", its number where it is one.
int sampleStride(int otherwise);

/// The points at which a test interrupts a scenario: the first, the last and some between, the same in every
/// run. Each run and each scenario has others, so that together they meet every kind of step.
class Sample
{
public:
    /// `stride` is that of the sample where the environment wants no other.
    Sample(const Scenario &scenario, int stride);

    /// The points for the next run, which has `count` of them: their numbers, ascending from 1. With a
    /// `spacing`, only one in so many points is considered.
    std::vector<int> of(int count, int spacing = 1);

    /// Prints how many points of how many were tried, on a line of its own: "power cuts: 9 of 80 (save)".
    void print(const char *kind) const;

private:
    const Scenario &m_scenario;
    int m_stride;
    int m_shift;
    int m_tried = 0;
    int m_all = 0;
};

} // namespace vornel

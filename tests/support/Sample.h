#pragma once

#include "Scenario.h"

#include <vector>

namespace vornel {

/// The points at which a test interrupts a scenario. Where the environment's `VORNEL_POINTS` is "all" those
/// are all of them, where it is a number one in so many; otherwise the first, the last and some between, the
/// same in every run. Each run and each scenario has others, so that together they meet every kind of step.
class Sample
{
public:
    /// `stride` is how many points there are from one of a sample to the next.
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

#include "Sample.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <string_view>

namespace vornel {

int sampleStride(int otherwise)
{
    const char *points = std::getenv("VORNEL_POINTS");
    if (points == nullptr)
        return otherwise;
    return points == std::string_view("all") ? 1 : std::max(1, std::atoi(points));
}

Sample::Sample(const Scenario &scenario, int stride)
    : m_scenario(scenario),
      m_stride(sampleStride(stride)),
      m_shift(static_cast<int>(std::ranges::find(scenarios(), scenario.name, &Scenario::name) -
                               scenarios().begin()))
{}

std::vector<int> Sample::of(int count, int spacing)
{
    EXPECT_GT(count, 2) << "the run was not counted";
    std::vector<int> numbers;
    for (int number = 1; number <= count; ++number) {
        if (number == 1 || number == count || (number + m_shift) % (spacing * m_stride) == 0)
            numbers.push_back(number);
    }
    m_tried += static_cast<int>(numbers.size());
    m_all += count;
    ++m_shift;
    return numbers;
}

void Sample::print(const char *kind) const
{
    std::cout << kind << ": " << m_tried << " of " << m_all << " (" << m_scenario.name << ")" << std::endl;
}

} // namespace vornel

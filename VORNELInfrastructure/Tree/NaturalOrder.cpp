#include "NaturalOrder.h"

#include <algorithm>

namespace vornel {

namespace {

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

unsigned char lowered(char c)
{
    return static_cast<unsigned char>(c >= 'A' && c <= 'Z' ? c - 'A' + 'a' : c);
}

/// Cuts the number, without its leading zeros, off the front of `text`.
std::string_view takeNumber(std::string_view &text)
{
    const std::size_t end = std::min(text.find_first_not_of("0123456789"), text.size());
    std::string_view digits = text.substr(0, end);
    text.remove_prefix(end);
    digits.remove_prefix(std::min(digits.find_first_not_of('0'), digits.size()));
    return digits;
}

} // namespace

bool naturallyBefore(std::string_view a, std::string_view b)
{
    std::string_view restA = a;
    std::string_view restB = b;
    while (!restA.empty() && !restB.empty()) {
        if (isDigit(restA.front()) && isDigit(restB.front())) {
            const std::string_view numberA = takeNumber(restA);
            const std::string_view numberB = takeNumber(restB);
            if (numberA != numberB)
                return numberA.size() != numberB.size() ? numberA.size() < numberB.size() : numberA < numberB;
        } else {
            if (lowered(restA.front()) != lowered(restB.front()))
                return lowered(restA.front()) < lowered(restB.front());
            restA.remove_prefix(1);
            restB.remove_prefix(1);
        }
    }
    if (restA.empty() != restB.empty())
        return restA.empty();
    return a < b;
}

} // namespace vornel

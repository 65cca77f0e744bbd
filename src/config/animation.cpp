#include "config/animation.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace qx {

BarSpan MarqueeSpan(int width, std::uint32_t elapsedMilliseconds)
{
    constexpr int kCrossing = 1600;
    if (width <= 0)
        return {0, 0};
    const std::int64_t block = std::max(width / 4, 1);
    const std::int64_t end = elapsedMilliseconds % kCrossing * (width + block) / kCrossing;
    const auto within = [width](std::int64_t pixel) {
        return static_cast<int>(std::clamp<std::int64_t>(pixel, 0, width));
    };
    return {within(end - block), within(end)};
}

// A well-mixed number between 0 and 1 for each pair of numbers.
static double Fraction(std::uint32_t seed, std::uint32_t index)
{
    std::uint32_t mixed = seed + index * 0x9E3779B9U;
    mixed = (mixed ^ mixed >> 16) * 0x85EBCA6BU;
    mixed = (mixed ^ mixed >> 13) * 0xC2B2AE35U;
    return (mixed ^ mixed >> 16) / 4294967296.0;
}

Bubble BubbleAt(std::uint32_t seed, int index, std::uint32_t elapsedMilliseconds)
{
    const auto traits = static_cast<std::uint32_t>(index) * 4;
    const double radius = 0.01 + 0.03 * Fraction(seed, traits);
    const double riseSeconds = 2.0 + 4.0 * Fraction(seed, traits + 1);
    const double age = elapsedMilliseconds / 1000.0 / riseSeconds + Fraction(seed, traits + 2);
    const double sway = 0.02 * std::sin(age * 6 * std::numbers::pi);
    const double y = 1 + radius - (age - std::floor(age)) * (1 + 2 * radius);
    return {0.05 + 0.9 * Fraction(seed, traits + 3) + sway, y, radius};
}

}  // namespace qx

// Conversions written as they are printed in a table, and carried out in that order.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <iterator>
#include <utility>

namespace qx {

// A sequence of operations on a value, each with a constant. Written as an expression of kValue:
// kValue * 100 / 14.5 multiplies first and divides the result; nothing is combined.
struct Conversion {
    struct Step {
        char operation;  // + - * /
        double constant;
    };
    static constexpr std::size_t kMaxSteps = 4;

    Step steps[kMaxSteps] = {};
    std::size_t count = 0;

    constexpr Conversion Then(char operation, double constant) const
    {
        Conversion longer = *this;
        longer.steps[longer.count++] = {operation, constant};
        return longer;
    }
};

inline constexpr Conversion kValue;

constexpr Conversion operator+(const Conversion& c, double constant)
{
    return c.Then('+', constant);
}
constexpr Conversion operator-(const Conversion& c, double constant)
{
    return c.Then('-', constant);
}
constexpr Conversion operator*(const Conversion& c, double constant)
{
    return c.Then('*', constant);
}
constexpr Conversion operator/(const Conversion& c, double constant)
{
    return c.Then('/', constant);
}

// One function per cell of a square table, so that no table is read while values are converted.
template <const auto& kTable>
class ConversionFunctions {
  public:
    // 0 for an unknown unit on either side.
    static double Convert(double value, int from, int to)
    {
        return Known(from, to) ? kOne[Cell(from, to)](value) : 0.0;
    }

    // Each of `count` values; `results` may be `values`.
    static void ConvertAll(const double* values, double* results, std::size_t count, int from,
                           int to)
    {
        if (Known(from, to))
            kMany[Cell(from, to)](values, results, count);
        else
            std::fill_n(results, count, 0.0);
    }

  private:
    static constexpr std::size_t kUnits = std::size(kTable);

    static bool Known(int from, int to)
    {
        return static_cast<std::size_t>(from) < kUnits && static_cast<std::size_t>(to) < kUnits;
    }
    static std::size_t Cell(int from, int to)
    {
        return static_cast<std::size_t>(from) * kUnits + static_cast<std::size_t>(to);
    }

    template <std::size_t kCell, std::size_t kStep>
    static double Step(double value)
    {
        constexpr Conversion::Step kThis = kTable[kCell / kUnits][kCell % kUnits].steps[kStep];
        if constexpr (kThis.operation == '+')
            return value + kThis.constant;
        else if constexpr (kThis.operation == '-')
            return value - kThis.constant;
        else if constexpr (kThis.operation == '*')
            return value * kThis.constant;
        else if constexpr (kThis.operation == '/')
            return value / kThis.constant;
        else
            return value;  // the sequence is shorter
    }

    template <std::size_t kCell, std::size_t... kSteps>
    static double Run(double value, std::index_sequence<kSteps...>)
    {
        ((value = Step<kCell, kSteps>(value)), ...);
        return value;
    }

    template <std::size_t kCell>
    static double One(double value)
    {
        return Run<kCell>(value, std::make_index_sequence<Conversion::kMaxSteps>());
    }

    template <std::size_t kCell>
    static void Many(const double* values, double* results, std::size_t count)
    {
        for (std::size_t i = 0; i < count; ++i)
            results[i] = One<kCell>(values[i]);
    }

    using OneFunction = double (*)(double);
    using ManyFunction = void (*)(const double*, double*, std::size_t);

    template <std::size_t... kCells>
    static constexpr std::array<OneFunction, sizeof...(kCells)> Ones(std::index_sequence<kCells...>)
    {
        return {One<kCells>...};
    }
    template <std::size_t... kCells>
    static constexpr std::array<ManyFunction, sizeof...(kCells)> Manies(
        std::index_sequence<kCells...>)
    {
        return {Many<kCells>...};
    }

    static constexpr auto kOne = Ones(std::make_index_sequence<kUnits * kUnits>());
    static constexpr auto kMany = Manies(std::make_index_sequence<kUnits * kUnits>());
};

}  // namespace qx
